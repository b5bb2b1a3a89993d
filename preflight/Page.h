#pragma once

#include <optional>
#include <string>
#include <vector>

#include "preflight/Area.h"
#include "preflight/VectorPage.h"
#include "render/GreyRaster.h"

namespace linewright {

/** Text of a page in one font. */
struct PlacedText {
    Area area;
    /** The font's name, without the mark of a part of it. */
    std::string font;
};

/** A page of a document as it looks. */
struct Page {
    /** From 1. */
    int number = 1;
    /** In mm. */
    double width = 0;
    double height = 0;
    double pixelsPerMillimetre = 0;
    GreyRaster grey;
    /** What a scanner's red light sees. */
    GreyRaster red;
    /** What is painted, where the document is made of shapes. */
    std::optional<VectorPage> shapes;
    std::vector<PlacedText> texts;
};

}  // namespace linewright
