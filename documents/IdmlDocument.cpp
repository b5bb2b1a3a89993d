#include <algorithm>
#include <span>
#include <vector>

#include "documents/DocumentWriter.h"
#include "documents/IdmlParts.h"

namespace linewright {

namespace {

/** A frame reaches so far beyond its text that no rounding makes it too small. */
constexpr double kOverhang = 3;

/** InDesign Markup: a spread a page; a label's barcode and the text above and below it are a frame
 *  and a story each. */
class IdmlDocument : public DocumentWriter {
  public:
    explicit IdmlDocument(const DocumentFrame& documentFrame)
        : frame(documentFrame), parts(frame.layout.sheet) {}

    void Add(const Label& label) override {
        const LabelSheet& sheet = frame.layout.sheet;
        if (place == sheet.LabelsOfPage()) place = 0;
        if (place == 0) parts.AddPage();
        const double left = sheet.left + place % sheet.columns * sheet.columnPitch;
        const int row = place / sheet.columns;
        const double top = sheet.top + row * sheet.rowPitch;
        ++place;
        const auto onPage = [&](LabelBox box) {
            return LabelBox{left + box.left, top + box.top, box.width, box.height};
        };
        if (frame.layout.isOutlined) {
            parts.AddOutline(onPage({0, 0, sheet.labelWidth, sheet.labelHeight}));
        }
        LabelBox string = label.string;
        string.width += kOverhang;
        string.height += kOverhang;
        parts.AddFrame(onPage(string), label.string.height,
                       {{&frame.styles.OfBarcode(label), label.barcode}});
        // One frame for the lines above the symbol, or beside it, and one for those below.
        const bool isBeside = frame.layout.isBeside;
        const auto below = std::find_if(
            label.texts.begin(), label.texts.end(),
            [&](const LabelText& text) { return !isBeside && text.box.top > label.symbol.top; });
        AddTexts({label.texts.begin(), below}, onPage);
        AddTexts({below, label.texts.end()}, onPage);
    }

    std::string Finish() override {
        for (const ParagraphStyle& style : frame.styles.All()) parts.AddStyle(style);
        return parts.Package(frame.title);
    }

  private:
    template <class OnPage>
    void AddTexts(std::span<const LabelText> texts, OnPage onPage) {
        if (texts.empty()) return;
        LabelBox box = texts.front().box;
        box.height = texts.back().box.top + texts.back().box.height - box.top + kOverhang;
        std::vector<IdmlParts::Paragraph> paragraphs;
        paragraphs.reserve(texts.size());
        for (const LabelText& text : texts) {
            paragraphs.push_back({&frame.styles.OfLine(text.line), text.text});
        }
        parts.AddFrame(onPage(box), paragraphs.front().style->size * kLineBaseline, paragraphs);
    }

    const DocumentFrame frame;
    IdmlParts parts;
    /** Of the next label on its page. */
    int place = 0;
};

}  // namespace

std::unique_ptr<DocumentWriter> MakeIdmlWriter(const DocumentFrame& frame) {
    return std::make_unique<IdmlDocument>(frame);
}

}  // namespace linewright
