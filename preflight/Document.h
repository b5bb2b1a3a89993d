#pragma once

#include <memory>
#include <optional>
#include <string>

#include "preflight/Page.h"

namespace linewright {

/** The file is named in front of what is wrong with it: all of this throws Failure. */
class Document {
  public:
    virtual ~Document() = default;

    virtual int PageCount() const = 0;
    /** A page by its number from 1. */
    virtual Page ReadPage(int number) const = 0;
    /** A part of a page in red light, with more pixels than the page was read with; none where
     *  there are no more of them. */
    virtual std::optional<GreyRaster> ReadRegion(const Page& page, const Area& area,
                                                 double pixelsPerMillimetre) const = 0;
    /** A page for people to look at, in grey, with about so many pixels. */
    virtual GreyRaster Picture(const Page& page, double pixelsPerMillimetre) const = 0;
};

/** Opens a PDF, PNG or TIFF file by its UTF-8 name; what it is its first bytes say. `dotsPerInch`
 *  is the resolution of a picture that does not state it, or of one that states a wrong one. */
std::unique_ptr<Document> OpenDocument(const std::string& name, std::optional<double> dotsPerInch);

/** Pixels of a page or picture that can be looked at. */
inline constexpr double kMostPixels = 268'435'456;

}  // namespace linewright
