#include "documents/Label.h"

#include <algorithm>

#include "render/Tolerances.h"
#include "text/FontText.h"

namespace linewright {

namespace {

using Content = LabelLine::Content;

/** Between a symbol and the line above or below it: text must not pass for the barcode's. */
constexpr double kClear = 2.5;
/** Between a symbol and the lines beside it. */
constexpr double kBesideClear = 4 * kMillimetre;
/** A symbol may be so much larger than its room: what is lost to rounding. */
constexpr double kSlack = 0.01;

LabelBox InnerBox(const Layout& layout) {
    const double padding = layout.padding;
    return {padding, padding, layout.sheet.labelWidth - 2 * padding,
            layout.sheet.labelHeight - 2 * padding};
}

/** What the symbol and the text above and below or beside it take. */
struct Measures {
    double symbolWidth = 0;
    double symbolHeight = 0;
    double above = 0;
    double below = 0;

    double Height(bool isBeside) const {
        return isBeside ? std::max(symbolHeight, above + below) : above + symbolHeight + below;
    }
};

class Composer {
  public:
    Composer(const Layout& runLayout, Fonts& runFonts, const DrawnBarcode& runDrawn,
             const std::vector<std::vector<std::string>>& runLines)
        : layout(runLayout), fonts(runFonts), drawn(runDrawn), lines(runLines) {}

    ComposedLabel Compose() {
        Measure();
        RequireRoom();
        PlaceSymbol();
        PlaceTexts();
        return {std::move(label), std::move(warnings)};
    }

  private:
    bool IsBarcode(std::size_t line) const {
        return layout.lines[line].content == Content::kBarcode;
    }

    double HeightOf(std::size_t line) const {
        return static_cast<double>(lines[line].size()) * layout.lines[line].size * kLineHeight;
    }

    void Measure() {
        const BarcodeDrawing& drawing = *drawn.drawing;
        measures.symbolWidth = drawing.Width() * drawing.Module();
        measures.symbolHeight = drawing.Height() * drawing.Module();
        double* side = &measures.above;
        for (std::size_t line = 0; line < lines.size(); ++line) {
            if (IsBarcode(line)) {
                side = &measures.below;
            } else {
                *side += HeightOf(line);
            }
        }
        if (layout.isBeside) return;
        if (measures.above > 0) measures.above += kClear;
        if (measures.below > 0) measures.below += kClear;
    }

    void RequireRoom() const {
        LabelBox room = InnerBox(layout);
        if (HasTextBeside(layout)) room.width = TextColumn(layout).left - kBesideClear - room.left;
        const double height = measures.Height(layout.isBeside);
        if (measures.symbolWidth <= room.width + kSlack && height <= room.height + kSlack) return;
        throw DrawingFailure(DrawingProblem::Reason::kLabel,
                             {Millimetres(measures.symbolWidth), Millimetres(height),
                              Millimetres(std::max(0.0, room.width)), Millimetres(room.height)});
    }

    void PlaceSymbol() {
        const LabelBox inner = InnerBox(layout);
        const double free = layout.isBeside ? 0 : inner.width - measures.symbolWidth;
        const double height = layout.isBeside ? measures.symbolHeight : measures.Height(false);
        const double top = (layout.sheet.labelHeight - height) / 2;
        label.type = drawn.outcome.type;
        label.drawing = &*drawn.drawing;
        label.barcode = FontText(drawn.outcome.bytes);
        label.symbol = {inner.left + ShareOf(SymbolAlignment()) * std::max(0.0, free),
                        top + (layout.isBeside ? 0 : measures.above), measures.symbolWidth,
                        measures.symbolHeight};
        const double module = drawn.drawing->Module();
        const BarcodeDrawing::TextPlace place = drawn.drawing->PlaceOfText();
        label.baseline = label.symbol.top + place.baseline * module;
        label.string = {label.symbol.left + place.x * module, label.baseline - place.ascent,
                        label.symbol.width - place.x * module, place.ascent};
    }

    Alignment SymbolAlignment() const {
        for (const LabelLine& line : layout.lines) {
            if (line.content == Content::kBarcode) return line.alignment;
        }
        return Alignment::kCentre;
    }

    void PlaceTexts() {
        const LabelBox column = TextColumn(layout);
        const double all = measures.above + measures.below;
        double top = layout.isBeside ? (layout.sheet.labelHeight - all) / 2
                                     : label.symbol.top - measures.above;
        for (std::size_t line = 0; line < lines.size(); ++line) {
            if (IsBarcode(line)) {
                if (!layout.isBeside) top = label.symbol.top + measures.symbolHeight + kClear;
                continue;
            }
            const double height = layout.lines[line].size * kLineHeight;
            for (const std::string& text : lines[line]) {
                label.texts.push_back({Fitted(text, line, column.width),
                                       line,
                                       {column.left, top, column.width, height}});
                top += height;
            }
        }
    }

    std::string Fitted(const std::string& text, std::size_t line, double width) {
        const LabelLine& style = layout.lines[line];
        const auto face = fonts.Text({layout.textFamily, style.isBold});
        const double room = width * kCertain;
        std::string fitted = face->Fitted(text, style.size, room);
        if (fitted != text) {
            const double excess = face->Set(text.substr(0, kMeasured), style.size).width - room;
            warnings.push_back({DrawingWarning::Kind::kTextCut, {fitted, Millimetres(excess)}});
        }
        return fitted;
    }

    /** Programs do not measure text alike; what is wider would be broken by some. */
    static constexpr double kCertain = 0.985;
    /** As many bytes of a text say how wide it is. */
    static constexpr std::size_t kMeasured = 20000;

    const Layout& layout;
    Fonts& fonts;
    const DrawnBarcode& drawn;
    const std::vector<std::vector<std::string>>& lines;
    Measures measures;
    Label label{};
    std::vector<DrawingWarning> warnings;
};

}  // namespace

bool HasTextBeside(const Layout& layout) {
    return layout.isBeside && layout.lines.size() > 1;
}

LabelBox TextColumn(const Layout& layout) {
    LabelBox column = InnerBox(layout);
    if (!HasTextBeside(layout)) return column;
    const double half = column.width / 2;
    return {column.left + half, column.top, half, column.height};
}

ComposedLabel Compose(const Layout& layout, Fonts& fonts, const DrawnBarcode& drawn,
                      const std::vector<std::vector<std::string>>& lines) {
    return Composer(layout, fonts, drawn, lines).Compose();
}

}  // namespace linewright
