#include "views/StatedMeasures.h"

#include <algorithm>
#include <array>

namespace linewright {

using host::WidgetKind;

namespace {

constexpr int kEm = 12;
constexpr char32_t kFirstAscii = 0x20;
constexpr char32_t kFirstLatin1 = 0xA0;
constexpr std::array<int, 95> kAscii{
    4, 5,  6, 11, 8,  12, 10, 4,  5,  5, 6, 11, 4,  5, 4,  5,  8,  8, 8, 8, 8, 8,  8, 8,
    8, 8,  5, 5,  11, 11, 11, 7,  12, 9, 9, 9,  10, 8, 7,  10, 10, 4, 4, 8, 7, 11, 9, 10,
    8, 10, 9, 8,  8,  9,  9,  12, 9,  8, 9, 5,  5,  5, 11, 6,  6,  8, 8, 7, 8, 8,  5, 8,
    8, 4,  4, 7,  4,  12, 8,  8,  8,  8, 5, 7,  5,  8, 8,  10, 8,  8, 7, 8, 5, 8,  11};
constexpr std::array<int, 96> kLatin1{
    4,  5, 8,  8,  8,  8,  5,  6,  6,  12, 6, 8, 11, 5, 12, 6,  6, 11, 5, 5, 6, 8, 8,  4,
    6,  5, 6,  8,  12, 12, 12, 7,  9,  9,  9, 9, 9,  9, 12, 9,  8, 8,  8, 8, 4, 4, 4,  4,
    10, 9, 10, 10, 10, 10, 10, 11, 10, 9,  9, 9, 9,  8, 8,  8,  8, 8,  8, 8, 8, 8, 12, 7,
    8,  8, 8,  8,  4,  4,  4,  4,  8,  8,  8, 8, 8,  8, 8,  11, 8, 8,  8, 8, 8, 8, 8,  8};

constexpr int kTextHeight = 16;
constexpr int kBoxHeight = 24;
constexpr int kPadding = 8;
// The square of a check box, the arrow of a pop-up, with what stands between it and the text
constexpr int kMarkWidth = 24;
constexpr int kButtonWidth = 75;
constexpr int kBoxWidth = 160;
constexpr int kDescriptionWidth = 560;
constexpr int kDescriptionLines = 18;
constexpr int kFrame = 1;

template <std::size_t size>
bool Has(const std::array<int, size>& widths, char32_t first, char32_t character) {
    return character >= first && character - first < widths.size();
}

int WidthOf(char32_t character) {
    if (Has(kAscii, kFirstAscii, character)) return kAscii[character - kFirstAscii];
    if (Has(kLatin1, kFirstLatin1, character)) return kLatin1[character - kFirstLatin1];
    return kEm;
}

int WidestOf(const std::vector<std::u32string>& texts) {
    int width = 0;
    for (const std::u32string& text : texts) width = std::max(width, StatedWidth(text));
    return width;
}

}  // namespace

int StatedWidth(std::u32string_view text) {
    int width = 0;
    for (const char32_t character : text)
        if (character != U'&') width += WidthOf(character);
    return width;
}

LayoutSize StatedSize(WidgetKind kind, const std::vector<std::u32string>& texts) {
    const int width = WidestOf(texts);
    switch (kind) {
        case WidgetKind::kLabel: return {width, kTextHeight};
        case WidgetKind::kCheckBox: return {kMarkWidth + width, kTextHeight};
        case WidgetKind::kPopUp: return {2 * kPadding + width + kMarkWidth, kBoxHeight};
        case WidgetKind::kButton: return {std::max(kButtonWidth, width + 4 * kPadding), kBoxHeight};
        case WidgetKind::kEditBox:
        case WidgetKind::kResultBox: return {kBoxWidth, kBoxHeight};
        case WidgetKind::kDescription:
            return {kDescriptionWidth, kDescriptionLines * kTextHeight + 2 * kPadding};
    }
    return {};
}

LayoutGroup StatedGroup(std::u32string_view title) {
    if (title.empty()) return {};
    return {.isFramed = true,
            .left = kFrame,
            .top = kTextHeight,
            .right = kFrame,
            .bottom = kFrame,
            .minimumWidth = StatedWidth(title) + 4 * kPadding};
}

}  // namespace linewright
