#include <algorithm>
#include <vector>

#include "documents/DocumentWriter.h"
#include "documents/OpenDocumentParts.h"

namespace linewright {

namespace {

/** A page keeps so much of its height for the paragraph that has to stand behind a table. */
constexpr double kLastParagraph = 3;
/** Sides that lie closer together are one. */
constexpr double kSame = 0.01;

/** A label's cell in a table: from its left side so far. */
struct Cell {
    double left;
    double width;
    bool isFirst;
    bool isLast;
};

/** OpenDocument 1.3 (ISO/IEC 26300-3): a table a page, in which each label is a cell or, where its
 *  lines stand beside the barcode, two. Rows have their heights whatever is in them. */
class OpenDocument : public DocumentWriter {
  public:
    OpenDocument(const DocumentFrame& documentFrame, bool isFlatFile)
        : frame(documentFrame), isFlat(isFlatFile) {
        const LabelSheet& sheet = frame.layout.sheet;
        const double textLeft = TextColumn(frame.layout).left;
        if (HasTextBeside(frame.layout)) {
            cells = {{0, textLeft, true, false},
                     {textLeft, sheet.labelWidth - textLeft, false, true}};
        } else {
            cells = {{0, sheet.labelWidth, true, true}};
        }
        columnGap = sheet.columns > 1 ? sheet.columnPitch - sheet.labelWidth : 0;
        rowGap = sheet.rows > 1 ? sheet.rowPitch - sheet.labelHeight : 0;
        parts.AddPageStyles(sheet);
    }

    void Add(const Label& label) override {
        const LabelSheet& sheet = frame.layout.sheet;
        if (place == sheet.LabelsOfPage()) place = 0;
        if (place == 0) BeginPage();
        if (place % sheet.columns == 0) BeginRow();
        if (place % sheet.columns > 0 && columnGap > kSame) AddEmptyCell();
        for (const Cell& cell : cells) AddCell(cell, label);
        ++place;
    }

    std::string Finish() override {
        const LabelSheet& sheet = frame.layout.sheet;
        for (; place % sheet.columns != 0; ++place) {
            if (columnGap > kSame) AddEmptyCell();
            for (std::size_t cell = 0; cell < cells.size(); ++cell) AddEmptyCell();
        }
        parts.AddLastParagraph();
        for (const ParagraphStyle& style : frame.styles.All()) parts.AddStyle(style);
        return isFlat ? parts.FlatFile(frame.title) : parts.Package(frame.title);
    }

  private:
    void BeginPage() {
        const LabelSheet& sheet = frame.layout.sheet;
        const double width = (sheet.columns - 1) * sheet.columnPitch + sheet.labelWidth;
        table = parts.AddTable(width);
        for (int column = 0; column < sheet.columns; ++column) {
            if (column > 0 && columnGap > kSame) parts.AddColumn(table, columnGap);
            for (const Cell& cell : cells) parts.AddColumn(table, cell.width);
        }
    }

    void BeginRow() {
        const LabelSheet& sheet = frame.layout.sheet;
        if (place > 0 && rowGap > kSame) {
            row = parts.AddRow(table, rowGap);
            const int gaps = columnGap > kSame ? sheet.columns - 1 : 0;
            const int all = sheet.columns * static_cast<int>(cells.size()) + gaps;
            for (int cell = 0; cell < all; ++cell) AddEmptyCell();
        }
        const bool isLast = place / sheet.columns == sheet.rows - 1;
        const double end = sheet.top + (sheet.rows - 1) * sheet.rowPitch + sheet.labelHeight;
        const double excess = isLast ? end + kLastParagraph - sheet.pageHeight : 0;
        row = parts.AddRow(table, sheet.labelHeight - std::max(0.0, excess));
    }

    void AddEmptyCell() { parts.AddCell(row, {}); }

    void AddCell(const Cell& cell, const Label& label) {
        OpenDocumentParts::CellSides sides;
        if (frame.layout.isOutlined) sides = {cell.isFirst, cell.isLast, true};
        // What stands in this cell, from above: the symbol, the texts, or both.
        const bool hasTexts = cell.isLast;
        bool isSymbolDue = cell.isFirst;
        double bottom = 0;
        pugi::xml_node node;
        const auto top = [&](double wanted) {
            if (!node) {
                sides.top = std::max(0.0, wanted);
                node = parts.AddCell(row, sides);
                bottom = wanted;
            }
            const double gap = std::max(0.0, wanted - bottom);
            return gap < kSame ? 0 : gap;
        };
        const auto addSymbol = [&] {
            const double gap = top(label.string.top);
            parts.AddParagraph(node, frame.styles.OfBarcode(label), gap,
                               label.string.left - cell.left, 0, label.barcode);
            bottom = label.string.top + label.string.height;
            isSymbolDue = false;
        };
        for (const LabelText& line : label.texts) {
            if (!hasTexts) break;
            if (isSymbolDue && line.box.top > label.string.top) addSymbol();
            const ParagraphStyle& style = frame.styles.OfLine(line.line);
            const double gap = top(line.box.top);
            parts.AddParagraph(node, style, gap, line.box.left - cell.left,
                               cell.left + cell.width - line.box.left - line.box.width, line.text);
            bottom = line.box.top + line.box.height;
        }
        if (isSymbolDue) addSymbol();
        if (!node) parts.AddCell(row, sides);
    }

    const DocumentFrame frame;
    bool isFlat;
    OpenDocumentParts parts;
    pugi::xml_node table;
    pugi::xml_node row;
    std::vector<Cell> cells;
    double columnGap = 0;
    double rowGap = 0;
    /** Of the next label on its page. */
    int place = 0;
};

}  // namespace

std::unique_ptr<DocumentWriter> MakeOpenDocumentWriter(const DocumentFrame& frame, bool isFlat) {
    return std::make_unique<OpenDocument>(frame, isFlat);
}

}  // namespace linewright
