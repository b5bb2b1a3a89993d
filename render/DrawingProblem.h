#pragma once

#include <string>
#include <vector>

namespace linewright {

/** Why a drawing cannot be made. The parameters, UTF-8, fill a door's sentence in the order in
 * which they stand here; lengths are in mm. */
struct DrawingProblem {
    enum class Reason {
        /** A font is not there or cannot be read: its file. */
        kNoFont,
        /** A font has not the axis that a height needs: its file. */
        kNoAxes,
        /** The face for text is not there or cannot be read: its name. */
        kNoTextFace,
        /** Digits without bars have neither height nor width of bars. */
        kNoBars,
        /** Postal bars have the heights that their standard gives. */
        kFixedHeight,
        /** Bars cannot be so high at this X-dimension: the least and the largest height. */
        kHeight,
        /** Bars cannot be so much narrower: the largest reduction in per cent of the narrowest. */
        kReduction,
        /** No such X-dimension: the least and the largest. */
        kXDimension,
        /** The page would be too large: the longest side that one can have. */
        kPage,
        /** The picture would be too large: the most pixels that one can have. */
        kPicture,
        /** No whole dots make a module: the resolution in dpi, the dots that a module has, and of
         *  what can be had the X-dimension, its per cent of the usual one, and its dots. */
        kNoWholeDots,
        /** Bars end on halves of modules, so that the dots of a module must be even. */
        kOddPixels,
        /** Bearer bars belong to Interleaved 2 of 5. */
        kNoBearer,
        /** Light-margin marks belong to EAN-13 and EAN-8. */
        kNoMarginMarks,
        /** A kind of file knows no ink but black: its ending. */
        kInk,
        /** A library that draws or writes could not do its work: its own words. */
        kLibrary,
    };

    /** Whether it is the machine's and not the wish's: any other drawing would have it too. */
    bool IsOfMachine() const {
        return reason == Reason::kNoFont || reason == Reason::kNoAxes ||
               reason == Reason::kNoTextFace || reason == Reason::kLibrary;
    }

    Reason reason{};
    std::vector<std::string> parameters{};
};

}  // namespace linewright
