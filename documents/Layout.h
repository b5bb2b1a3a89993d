#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "types/Dimensions.h"

namespace linewright {

/** A page and the labels on it, all alike. Lengths are in points. */
struct LabelSheet {
    /** How it is asked for. */
    std::string_view name;
    double pageWidth;
    double pageHeight;
    int columns;
    int rows;
    double labelWidth;
    double labelHeight;
    /** White from the page's upper left corner to the first label's. */
    double left;
    double top;
    /** From a label's side to the same side of the next one. */
    double columnPitch;
    double rowPitch;
    /** Records stand below one another as in a list: lines beside the barcode, and hairlines. */
    bool isList = false;

    int LabelsOfPage() const { return columns * rows; }
};

/** Stands between columns on one line; where all that stands beside it is empty it goes too. */
inline constexpr std::string_view kBetweenColumns = " \xC2\xB7 ";

/** Common sheets, by their measures. The first one is taken where nobody says otherwise. */
extern const std::vector<LabelSheet> kLabelSheets;

/** nullptr where none has the name. */
const LabelSheet* FindLabelSheet(std::string_view name);

enum class Alignment { kLeft, kCentre, kRight };

/** How much of the free room stands on the left. */
constexpr double ShareOf(Alignment alignment) {
    return alignment == Alignment::kLeft ? 0 : alignment == Alignment::kCentre ? 0.5 : 1;
}

/** What stands on a line of a label. */
struct LabelLine {
    enum class Content {
        /** `text`, in which {NAME} stands for what a record has in that column. */
        kText,
        kBarcode,
        /** What people read of the barcode, where its font prints none of it. */
        kReadable,
    };

    Content content = Content::kText;
    /** UTF-8. */
    std::string text{};
    /** In points. */
    double size = 8;
    bool isBold = false;
    Alignment alignment = Alignment::kCentre;

    bool operator==(const LabelLine&) const = default;
};

/** What a document looks like. A line that says nothing for a record takes no room. */
struct Layout {
    LabelSheet sheet = kLabelSheets.front();
    /** White on all sides of a label that nothing is set in, in points. */
    double padding = 1.5 * kMillimetre;
    /** One of them is the barcode. */
    std::vector<LabelLine> lines{};
    /** The other lines stand to the right of the barcode, not above and below it. */
    bool isBeside = false;
    /** A hairline around each label, to cut along. */
    bool isOutlined = false;
    /** The family of all text but barcodes. */
    std::string textFamily = "DejaVu Sans";
};

/** What a sheet looks like where nothing more is said. */
Layout LayoutOn(const LabelSheet& sheet);

/** What a file has for a layout that says nothing of lines: the title in bold, the barcode with
 * what people read of it, and the other columns. "" for a title that is none. */
std::vector<LabelLine> UsualLines(const std::string& titleColumn,
                                  const std::vector<std::string>& otherColumns);

}  // namespace linewright
