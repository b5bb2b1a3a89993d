#include "render/Sheet.h"

#include <cairo/cairo-pdf.h>

#include <algorithm>
#include <cmath>
#include <utility>

#include "render/CairoPage.h"
#include "render/PdfForPress.h"

namespace linewright {

namespace {

constexpr double kMargin = 15 * kMillimetre;
constexpr double kGutter = 8 * kMillimetre;
constexpr double kTextSize = 6.5;
constexpr double kTitleSize = 8;
constexpr double kHeadSize = 11;
constexpr double kLeading = 8.5;
constexpr double kBetween = 14;
constexpr double kTop = kMargin + 2 * kHeadSize;
/** Between a drawing and the lines above and below it: text must not pass for the barcode's. */
constexpr double kClear = 8;
/** Of a quiet zone's end. */
constexpr double kTick = 4;
constexpr double kTickWidth = 0.25;

double BottomOf(double pageHeight) {
    return pageHeight - kMargin - kLeading;
}

}  // namespace

Sheet::Sheet(Fonts& runFonts, Paper paper, std::string sheetTitle)
    : fonts(runFonts),
      pageWidth(paper == Paper::kA4 ? 210 * kMillimetre : 8.5 * kInch),
      pageHeight(paper == Paper::kA4 ? 297 * kMillimetre : 11 * kInch),
      title(std::move(sheetTitle)),
      page(std::make_unique<CairoPage>(
          cairo_pdf_surface_create_for_stream(AppendToString, &file, pageWidth, pageHeight))),
      y(kTop) {}

Sheet::~Sheet() = default;

void Sheet::Add(const SheetEntry& entry) {
    const double whole = pageWidth - 2 * kMargin;
    const double column = (whole - kGutter) / 2;
    const double bottom = BottomOf(pageHeight);
    const double drawnWidth = entry.drawing.Width() * entry.drawing.Module();
    const double drawnHeight = entry.drawing.Height() * entry.drawing.Module();
    const double lines = kLeading * static_cast<double>(entry.lines.size() + 2) + 2 * kClear;
    const double scale =
        std::min({1.0, whole / drawnWidth, (bottom - kTop - lines - kBetween) / drawnHeight});
    const double width = drawnWidth <= column ? column : whole;
    const double height = lines + drawnHeight * scale + kBetween;
    const bool isBeside = isRightFree && width == column && y + height <= bottom;
    if (!isBeside) {
        y += rowHeight;
        rowHeight = 0;
        if (y + height > bottom && y > kTop) EndPage("page " + std::to_string(pages + 1));
    }
    Show(entry, isBeside ? kMargin + column + kGutter : kMargin, y, width, scale);
    rowHeight = std::max(rowHeight, height);
    isRightFree = !isBeside && width == column;
}

std::string Sheet::Finish(const std::vector<std::string>& firstLines) {
    if (rowHeight > 0) EndPage("page " + std::to_string(pages + 1));
    // The tally is known last and stands first.
    const std::string behind =
        std::to_string(pages) + (pages == 1 ? " page" : " pages") + " of barcodes behind";
    const double bottom = BottomOf(pageHeight);
    const auto linesOfPage = static_cast<std::size_t>((bottom - kTop) / kLeading);
    const std::size_t count =
        std::max<std::size_t>(1, (firstLines.size() + linesOfPage - 1) / linesOfPage);
    for (std::size_t number = 0; number < count; ++number) {
        const std::size_t first = number * linesOfPage;
        const std::size_t last = std::min(first + linesOfPage, firstLines.size());
        for (std::size_t line = first; line < last; ++line) {
            y += kLeading;
            ShowLine(firstLines[line], kMargin, y, kTextSize, pageWidth - 2 * kMargin);
        }
        EndPage("summary " + std::to_string(number + 1) + " of " + std::to_string(count) + ", " +
                behind);
    }
    page->Finish();
    return PdfForPress(file, title, nullptr, static_cast<int>(count));
}

void Sheet::Show(const SheetEntry& entry, double x, double top, double width, double scale) {
    cairo_t* const context = page->Context();
    const BarcodeDrawing& drawing = entry.drawing;
    const double size = drawing.Module() * scale;
    double line = top + kLeading;
    ShowLine(entry.title, x, line, kTitleSize, width, true);
    line += kClear;
    cairo_save(context);
    cairo_translate(context, x, line);
    cairo_scale(context, size, size);
    if (drawing.IsFontText()) {
        drawing.ShowText(context);
    } else {
        const Shapes shapes = drawing.Drawn();
        cairo_scale(context, shapes.unit / drawing.Module(), shapes.unit / drawing.Module());
        FillShapes(context, shapes);
    }
    cairo_restore(context);
    const double drawnWidth = drawing.Width() * size;
    const double drawnHeight = drawing.Height() * size;
    for (const double side : {x, x + drawnWidth - kTickWidth}) {
        cairo_rectangle(context, side, line - kTick - 1, kTickWidth, kTick);
        cairo_rectangle(context, side, line + drawnHeight + 1, kTickWidth, kTick);
    }
    cairo_fill(context);
    line += drawnHeight + kClear;
    std::vector<std::string> lines = entry.lines;
    if (scale < 1) {
        lines.push_back("shown at " + std::to_string(std::lround(100 * scale)) + " % of its size");
    }
    for (const std::string& text : lines) {
        line += kLeading;
        ShowLine(text, x, line, kTextSize, width);
    }
}

void Sheet::ShowLine(const std::string& text, double x, double baseline, double size, double width,
                     bool isBold) {
    const auto face = fonts.Text(isBold);
    face->Show(page->Context(), face->SetWithin(text, size, width), size, x, baseline);
}

void Sheet::EndPage(const std::string& foot) {
    const double width = pageWidth - 2 * kMargin;
    ShowLine(title, kMargin, kMargin + kHeadSize, kHeadSize, width, true);
    ShowLine(foot, kMargin, pageHeight - kMargin, kTextSize, width);
    cairo_show_page(page->Context());
    CheckCairo(cairo_status(page->Context()));
    ++pages;
    y = kTop;
    rowHeight = 0;
    isRightFree = false;
}

}  // namespace linewright
