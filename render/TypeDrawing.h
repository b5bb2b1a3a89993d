#pragma once

#include <span>
#include <string_view>

#include "render/BarcodeFace.h"

namespace linewright {

/** Lengths are in points of 1/72 inch. */
constexpr double kMillimetre = 72 / 25.4;
constexpr double kInch = 72;

/** How a type is drawn where nobody says otherwise. */
struct TypeDrawing {
    std::string_view typeName;
    /** None for a type whose result is digits to be read, without bars. */
    const BarcodeFace* face;
    /** The narrowest bar's width. */
    double xDimension;
    /** The modules that the narrowest bar is wide. */
    int modulesPerX = 1;
    /** White beside the outermost bars, and above and below them, in modules. */
    double quietLeft;
    double quietRight;
    double quietVertical = 0;
    /** Whether the first digit of a result is printed as large as the others (EAN-13). */
    bool hasLargeFirstDigit = false;

    double Module() const { return xDimension / modulesPerX; }
    /** Postal bars have the heights of their standards. */
    bool HasFixedHeight() const { return modulesPerX > 1; }
};

/** The row of a type name, of which characters behind a known name do not matter; none for a name
 *  that is no type. */
const TypeDrawing* TypeDrawingOf(std::string_view typeName);

/** All types in the plug-in's order. */
std::span<const TypeDrawing> TypeDrawings();

}  // namespace linewright
