#pragma once

#include <set>
#include <string>
#include <utility>
#include <vector>

#include "documents/Label.h"
#include "documents/ParagraphStyles.h"
#include "documents/Xml.h"
#include "documents/ZipPackage.h"

namespace linewright {

/** The parts of an IDML package, as pages and frames are added. Lengths are in points. */
class IdmlParts {
  public:
    explicit IdmlParts(const LabelSheet& labelSheet);

    void AddPage();
    struct Paragraph {
        const ParagraphStyle* style;
        std::string text;
    };
    /** A frame on the last page with a story of its own, whose first baseline stands so far below
     *  the frame's top. */
    void AddFrame(const LabelBox& box, double firstBaseline,
                  const std::vector<Paragraph>& paragraphs);
    /** A hairline around a box on the last page. */
    void AddOutline(const LabelBox& box);
    void AddStyle(const ParagraphStyle& style);

    /** To be called once, as the last. */
    std::string Package(const std::string& title);

  private:
    void EndPage();
    void AddPath(pugi::xml_node item, const LabelBox& box) const;
    std::string Transform(double x, double y) const;

    const LabelSheet& sheet;
    ZipPackage package;
    pugi::xml_document spread;
    pugi::xml_node items;
    /** The names of the parts. */
    std::vector<std::string> spreads;
    std::vector<std::string> stories;
    std::size_t itemCount = 0;
    /** What the resources hold, below an element each. */
    pugi::xml_document paragraphStyles;
    pugi::xml_document fontFamilies;
    std::set<std::pair<std::string, std::string>> fonts;
};

}  // namespace linewright
