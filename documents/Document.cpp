#include "documents/Document.h"

#include <algorithm>
#include <utility>

#include "documents/DocumentWriter.h"
#include "documents/LineText.h"
#include "requests/PrintedText.h"
#include "types/BarcodeTypes.h"

namespace linewright {

namespace {

/** The names that people see of the types. */
std::map<const BarcodeType*, std::string> NamesOfTypes(Service& service) {
    std::map<const BarcodeType*, std::string> names;
    for (const TypeDescription& type : service.Types()) {
        names.emplace(FindTypeByPrefix(type.typeName), type.displayText);
    }
    return names;
}

std::unique_ptr<DocumentWriter> MakeWriter(DocumentFormat format, const DocumentFrame& frame) {
    switch (format) {
        case DocumentFormat::kIdml: return MakeIdmlWriter(frame);
        case DocumentFormat::kOdt: return MakeOpenDocumentWriter(frame, false);
        case DocumentFormat::kFodt: return MakeOpenDocumentWriter(frame, true);
        case DocumentFormat::kPdf: break;
    }
    return MakePdfWriter(frame);
}

/** Made with the plain font, whose bars have one height: text in a document has no other. */
DrawingWish DrawingOf(const DocumentWish& wish, const BarcodeType* type) {
    DrawingWish drawing{
        .xDimension = wish.xDimension, .magnification = wish.magnification, .isTextWanted = false};
    if (type != nullptr && type->face != nullptr) {
        constexpr double kWhole = 100;
        const double x = wish.xDimension.value_or(type->dimensions.xDimension *
                                                  wish.magnification.value_or(kWhole) / kWhole);
        drawing.height = {type->face->barHeight * x / type->dimensions.modulesPerX};
    }
    return drawing;
}

bool PrintsText(const BarcodeType& type) {
    return type.face == nullptr || type.face->printsText;
}

}  // namespace

std::optional<DocumentFormat> DocumentFormatOf(std::string_view fileName) {
    constexpr std::pair<std::string_view, DocumentFormat> kEndings[]{
        {".idml", DocumentFormat::kIdml},
        {".odt", DocumentFormat::kOdt},
        {".fodt", DocumentFormat::kFodt},
        {".pdf", DocumentFormat::kPdf},
    };
    std::string ending(fileName.substr(std::min(fileName.rfind('.'), fileName.size())));
    for (char& letter : ending) {
        if (letter >= 'A' && letter <= 'Z') letter = static_cast<char>(letter - 'A' + 'a');
    }
    for (const auto& [known, format] : kEndings) {
        if (ending == known) return format;
    }
    return std::nullopt;
}

Document::Document(Service& runService, Fonts& runFonts, DocumentWish documentWish)
    : service(runService),
      fonts(runFonts),
      wish(std::move(documentWish)),
      styles(wish.layout, fonts, NamesOfTypes(service)),
      writer(MakeWriter(wish.format, {wish.layout, fonts, styles, ShownText(wish.title)})) {}

Document::~Document() = default;

DrawnBarcode Document::Add(const BarcodeWish& barcode, const std::vector<std::string>& fields) {
    return Add(MakeBarcodeLeniently(service, barcode), barcode, fields);
}

DrawnBarcode Document::Add(BarcodeOutcome made, const BarcodeWish& barcode,
                           const std::vector<std::string>& fields) {
    const DrawingWish drawing = DrawingOf(wish, made.type);
    DrawnBarcode drawn = DrawOutcome(fonts, std::move(made), barcode, drawing);
    if (!drawn.drawing) return drawn;
    ComposedLabel composed =
        Compose(wish.layout, fonts, drawn, LinesOf(drawn.outcome, barcode, fields));
    drawn.warnings.insert(drawn.warnings.end(), composed.warnings.begin(), composed.warnings.end());
    if (barcode.isStrict && !composed.warnings.empty()) {
        drawn.drawing.reset();
        RefuseForWarnings(drawn.outcome);
        return drawn;
    }
    writer->Add(composed.label);
    ++labels;
    return drawn;
}

std::vector<std::vector<std::string>> Document::LinesOf(
    const BarcodeOutcome& outcome, const BarcodeWish& barcode,
    const std::vector<std::string>& fields) const {
    const auto textOf = [&](std::string_view column) -> std::optional<std::string_view> {
        const auto found = std::find(wish.columns.begin(), wish.columns.end(), column);
        if (found == wish.columns.end()) return std::nullopt;
        const auto place = static_cast<std::size_t>(found - wish.columns.begin());
        return place < fields.size() ? std::string_view(fields[place]) : std::string_view();
    };
    std::vector<std::vector<std::string>> lines;
    lines.reserve(wish.layout.lines.size());
    for (const LabelLine& line : wish.layout.lines) {
        std::string text;
        if (line.content == LabelLine::Content::kText) text = FilledLine(line.text, textOf);
        if (line.content == LabelLine::Content::kReadable && !PrintsText(*outcome.type)) {
            text = PrintedText(outcome, barcode);
        }
        lines.push_back(ShownLines(text));
    }
    return lines;
}

std::size_t Document::Pages() const {
    const auto ofPage = static_cast<std::size_t>(wish.layout.sheet.LabelsOfPage());
    return (labels + ofPage - 1) / ofPage;
}

std::string Document::Finish() {
    return writer->Finish();
}

}  // namespace linewright
