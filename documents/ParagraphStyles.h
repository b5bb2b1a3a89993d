#pragma once

#include <deque>
#include <map>
#include <string>
#include <string_view>

#include "documents/Label.h"

namespace linewright {

/** How a paragraph is set. Sizes are in points. */
struct ParagraphStyle {
    /** ASCII letters, digits and hyphens. */
    std::string id;
    /** What people see, UTF-8. */
    std::string name;
    std::string family;
    bool isBold = false;
    /** Of the font: its names in its family, and alone. */
    std::string fontStyle{};
    std::string postScriptName{};
    double size = 0;
    double leading = 0;
    Alignment alignment = Alignment::kLeft;
    bool isBarcode = false;
};

/** The paragraph styles of a document: one for each type that it has, and one for each of the
 *  layout's lines. */
class ParagraphStyles {
  public:
    /** `names` are the types' for people. All is borrowed but these. */
    ParagraphStyles(const Layout& layout, Fonts& fonts,
                    std::map<const BarcodeType*, std::string> names);

    /** The style of a label's barcode; valid for as long as this is. */
    const ParagraphStyle& OfBarcode(const Label& label);
    const ParagraphStyle& OfLine(std::size_t line) const { return lines.at(line); }
    /** All of them, the lines' in front. */
    const std::deque<ParagraphStyle>& All() const { return all; }

  private:
    std::map<const BarcodeType*, std::string> typeNames;
    std::deque<ParagraphStyle> all;
    std::map<std::size_t, const ParagraphStyle&> lines;
    std::map<const BarcodeType*, const ParagraphStyle&> barcodes;
    InstalledFace plainFace;
};

}  // namespace linewright
