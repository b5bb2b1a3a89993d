#include "documents/ParagraphStyles.h"

#include <fmt/format.h>

namespace linewright {

ParagraphStyles::ParagraphStyles(const Layout& layout, Fonts& fonts,
                                 std::map<const BarcodeType*, std::string> names)
    : typeNames(std::move(names)), plainFace(fonts.Text()->Installed()) {
    for (std::size_t place = 0; place < layout.lines.size(); ++place) {
        const LabelLine& line = layout.lines[place];
        if (line.content == LabelLine::Content::kBarcode) continue;
        const bool isReadable = line.content == LabelLine::Content::kReadable;
        const InstalledFace& face = fonts.Text({layout.textFamily, line.isBold})->Installed();
        all.push_back(
            {.id = fmt::format("Line-{}", place + 1),
             .name = fmt::format("{} {}", isReadable ? "Barcode text" : "Label line", place + 1),
             .family = layout.textFamily,
             .isBold = line.isBold,
             .fontStyle = face.style,
             .postScriptName = face.postScriptName,
             .size = line.size,
             .leading = line.size * kLineHeight,
             .alignment = line.alignment});
        lines.emplace(place, all.back());
    }
}

const ParagraphStyle& ParagraphStyles::OfBarcode(const Label& label) {
    if (const auto known = barcodes.find(label.type); known != barcodes.end()) return known->second;
    const BarcodeFace* const face = label.type->face;
    const std::string family(face ? face->family : TextFaceName{}.family);
    all.push_back({.id = fmt::format("Barcode-{}", label.type->shortName),
                   .name = "Barcode " + typeNames[label.type],
                   .family = family,
                   .fontStyle = face ? "Regular" : plainFace.style,
                   .postScriptName =
                       face ? fmt::format("{}-Regular", face->fileStem) : plainFace.postScriptName,
                   .size = label.drawing->PlaceOfText().size,
                   .leading = label.string.height,
                   .isBarcode = true});
    barcodes.emplace(label.type, all.back());
    return all.back();
}

}  // namespace linewright
