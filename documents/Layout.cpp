#include "documents/Layout.h"

#include <algorithm>

namespace linewright {

namespace {

constexpr double kA4Width = 210;
constexpr double kA4Height = 297;
constexpr double kLetterWidth = 8.5 * 25.4;
constexpr double kLetterHeight = 11 * 25.4;

/** A sheet by its millimetres. */
constexpr LabelSheet InMillimetres(LabelSheet sheet) {
    for (double* length :
         {&sheet.pageWidth, &sheet.pageHeight, &sheet.labelWidth, &sheet.labelHeight, &sheet.left,
          &sheet.top, &sheet.columnPitch, &sheet.rowPitch}) {
        *length *= kMillimetre;
    }
    return sheet;
}

/** Labels without gaps between them, in the middle of the page. */
constexpr LabelSheet Touching(std::string_view name, double pageWidth, double pageHeight,
                              int columns, int rows, double width, double height) {
    return InMillimetres({name, pageWidth, pageHeight, columns, rows, width, height,
                          (pageWidth - columns * width) / 2, (pageHeight - rows * height) / 2,
                          width, height});
}

constexpr LabelSheet ListOf(LabelSheet sheet) {
    sheet.isList = true;
    return sheet;
}

}  // namespace

const std::vector<LabelSheet> kLabelSheets{
    // clang-format off
    InMillimetres({"a4-2x7", kA4Width, kA4Height, 2, 7, 99.1, 38.1, 4.65, 15.15, 101.6, 38.1}),
    InMillimetres({"a4-2x4", kA4Width, kA4Height, 2, 4, 99.1, 67.7, 4.65, 13.1, 101.6, 67.7}),
    InMillimetres({"a4-2x8", kA4Width, kA4Height, 2, 8, 99.1, 33.9, 4.65, 12.9, 101.6, 33.9}),
    InMillimetres({"a4-3x6", kA4Width, kA4Height, 3, 6, 63.5, 46.6, 7.21, 8.7, 66.04, 46.6}),
    InMillimetres({"a4-3x7", kA4Width, kA4Height, 3, 7, 63.5, 38.1, 7.21, 15.15, 66.04, 38.1}),
    Touching("a4-3x8", kA4Width, kA4Height, 3, 8, 70, 37),
    Touching("a4-4x10", kA4Width, kA4Height, 4, 10, 52.5, 29.7),
    InMillimetres({"letter-2x5", kLetterWidth, kLetterHeight, 2, 5, 101.6, 50.8, 3.96, 12.7, 106.36, 50.8}),
    InMillimetres({"letter-2x7", kLetterWidth, kLetterHeight, 2, 7, 101.6, 33.87, 3.96, 21.15, 106.36, 33.87}),
    InMillimetres({"letter-3x10", kLetterWidth, kLetterHeight, 3, 10, 66.68, 25.4, 4.76, 12.7, 69.85, 25.4}),
    Touching("a4-page", kA4Width, kA4Height, 1, 1, 180, 267),
    Touching("a5-page", 148, 210, 1, 1, 128, 190),
    Touching("a6-page", 105, 148, 1, 1, 95, 138),
    Touching("letter-page", kLetterWidth, kLetterHeight, 1, 1, 185.9, 249.4),
    ListOf(Touching("a4-list", kA4Width, kA4Height, 1, 8, 180, 33)),
    ListOf(Touching("letter-list", kLetterWidth, kLetterHeight, 1, 7, 185.9, 34)),
    // clang-format on
};

const LabelSheet* FindLabelSheet(std::string_view name) {
    const auto found = std::find_if(kLabelSheets.begin(), kLabelSheets.end(),
                                    [name](const LabelSheet& sheet) { return sheet.name == name; });
    return found == kLabelSheets.end() ? nullptr : &*found;
}

Layout LayoutOn(const LabelSheet& sheet) {
    Layout layout;
    layout.sheet = sheet;
    layout.isBeside = sheet.isList;
    layout.isOutlined = sheet.isList;
    return layout;
}

std::vector<LabelLine> UsualLines(const std::string& titleColumn,
                                  const std::vector<std::string>& otherColumns) {
    using Content = LabelLine::Content;
    constexpr double kTitleSize = 8.5;
    constexpr double kReadableSize = 7.5;
    constexpr double kOtherSize = 6.5;
    std::vector<LabelLine> lines;
    if (!titleColumn.empty()) {
        lines.push_back({.text = '{' + titleColumn + '}', .size = kTitleSize, .isBold = true});
    }
    lines.push_back({.content = Content::kBarcode});
    lines.push_back({.content = Content::kReadable, .size = kReadableSize});
    std::string others;
    for (const std::string& column : otherColumns) {
        if (!others.empty()) others += kBetweenColumns;
        others.append("{").append(column).append("}");
    }
    if (!others.empty()) lines.push_back({.text = others, .size = kOtherSize});
    return lines;
}

}  // namespace linewright
