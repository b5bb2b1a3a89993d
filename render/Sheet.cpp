#include "render/Sheet.h"

#include <cairo/cairo-pdf.h>

#include <algorithm>
#include <cmath>

#include "render/PdfForPress.h"
#include "render/TextFace.h"

namespace linewright {

namespace {

constexpr double kPageWidth = 210 * kMillimetre;
constexpr double kPageHeight = 297 * kMillimetre;
constexpr double kMargin = 15 * kMillimetre;
constexpr double kGutter = 8 * kMillimetre;
constexpr double kWhole = kPageWidth - 2 * kMargin;
constexpr double kColumn = (kWhole - kGutter) / 2;
constexpr double kTextSize = 6.5;
constexpr double kTitleSize = 8;
constexpr double kHeadSize = 11;
constexpr double kLeading = 8.5;
constexpr double kBetween = 14;
constexpr double kTop = kMargin + 2 * kHeadSize;
constexpr double kBottom = kPageHeight - kMargin - kLeading;

/** An entry with its place on the sheet. */
struct Placed {
    const SheetEntry* entry;
    int page;
    double x, y;
    double width;
    double scale;
};

double ScaleOf(const SheetEntry& entry) {
    if (!entry.drawing) return 1;
    const BarcodeDrawing& drawing = *entry.drawing;
    const double tallest = kBottom - kTop - kLeading * static_cast<double>(entry.lines.size() + 3);
    return std::min({1.0, kWhole / (drawing.Width() * drawing.Module()),
                     tallest / (drawing.Height() * drawing.Module())});
}

double WidthOf(const SheetEntry& entry) {
    const bool fits = entry.drawing && entry.drawing->Width() * entry.drawing->Module() <= kColumn;
    return fits ? kColumn : kWhole;
}

double HeightOf(const SheetEntry& entry, double scale) {
    const double bars =
        entry.drawing ? entry.drawing->Height() * entry.drawing->Module() * scale + 4 : 0;
    const auto lines = static_cast<double>(entry.lines.size() + (scale < 1 ? 1 : 0));
    return kLeading * (1 + lines) + bars + kBetween;
}

/** Fills the pages from the top: two narrow entries beside each other, a wide one alone. */
std::vector<Placed> PlacesOf(const std::vector<SheetEntry>& entries) {
    std::vector<Placed> places;
    int page = 0;
    double y = kTop;
    double rowHeight = 0;
    bool isRightFree = false;
    for (const SheetEntry& entry : entries) {
        const double scale = ScaleOf(entry);
        const double width = WidthOf(entry);
        const double height = HeightOf(entry, scale);
        const bool isBeside = isRightFree && width == kColumn && y + height <= kBottom;
        if (!isBeside) {
            y += rowHeight;
            rowHeight = 0;
            if (y + height > kBottom) {
                ++page;
                y = kTop;
            }
        }
        places.push_back(
            {&entry, page, isBeside ? kMargin + kColumn + kGutter : kMargin, y, width, scale});
        rowHeight = std::max(rowHeight, height);
        isRightFree = !isBeside && width == kColumn;
    }
    return places;
}

void ShowText(cairo_t* context, const std::string& text, double x, double y, double size,
              double width, bool isBold = false) {
    SelectTextFace(context, size, isBold);
    cairo_move_to(context, x, y);
    cairo_show_text(context, FittedText(text, size, width).c_str());
}

void ShowEntry(cairo_t* context, const Placed& place) {
    const SheetEntry& entry = *place.entry;
    double y = place.y + kLeading;
    ShowText(context, entry.title, place.x, y, kTitleSize, place.width, true);
    if (entry.drawing) {
        const BarcodeDrawing& drawing = *entry.drawing;
        const double size = drawing.Module() * place.scale;
        cairo_save(context);
        cairo_translate(context, place.x, y + 4);
        cairo_scale(context, size, size);
        drawing.Paint(context, drawing.NaturalForm());
        cairo_restore(context);
        y += drawing.Height() * size + 4;
    }
    std::vector<std::string> lines = entry.lines;
    if (place.scale < 1) {
        lines.push_back("shown at " + std::to_string(std::lround(100 * place.scale)) +
                        " % of its size");
    }
    for (const std::string& line : lines) {
        y += kLeading;
        ShowText(context, line, place.x, y, kTextSize, place.width);
    }
}

void ShowFrame(cairo_t* context, const std::string& title, int page, int pages) {
    ShowText(context, title, kMargin, kMargin + kHeadSize, kHeadSize, kWhole, true);
    ShowText(context, "page " + std::to_string(page + 1) + " of " + std::to_string(pages), kMargin,
             kPageHeight - kMargin, kTextSize, kWhole);
}

}  // namespace

std::string SheetPdf(const std::string& title, const std::vector<SheetEntry>& entries) {
    const std::vector<Placed> places = PlacesOf(entries);
    const int pages = places.empty() ? 1 : places.back().page + 1;
    std::string file;
    cairo_surface_t* const surface = cairo_pdf_surface_create_for_stream(
        [](void* target, const unsigned char* bytes, unsigned int count) {
            static_cast<std::string*>(target)->append(reinterpret_cast<const char*>(bytes), count);
            return CAIRO_STATUS_SUCCESS;
        },
        &file, kPageWidth, kPageHeight);
    cairo_t* const context = cairo_create(surface);
    cairo_set_source_rgb(context, 0, 0, 0);
    for (int page = 0; page < pages; ++page) {
        ShowFrame(context, title, page, pages);
        for (const Placed& place : places) {
            if (place.page == page) ShowEntry(context, place);
        }
        cairo_show_page(context);
    }
    cairo_destroy(context);
    cairo_surface_finish(surface);
    cairo_surface_destroy(surface);
    return PdfForPress(file);
}

}  // namespace linewright
