#include <cairo/cairo-pdf.h>
#include <fmt/format.h>

#include <cmath>

#include "preflight/Preflight.h"
#include "render/CairoPage.h"
#include "render/Fonts.h"
#include "text/Readable.h"
#include "types/Dimensions.h"

namespace linewright {

namespace {

/** Of a page's picture, in pixels a millimetre: 100 to an inch. */
constexpr double kResolution = 100 / 25.4;
constexpr double kMargin = 36;
constexpr double kTextSize = 6.8;
constexpr double kTitleSize = 11;
constexpr double kLeading = 9.5;
constexpr double kFrame = 1.2;
constexpr double kBeside = 3;

struct Colour {
    double red;
    double green;
    double blue;
};
constexpr Colour kSound{0.10, 0.50, 0.25};
constexpr Colour kFaulty{0.80, 0.10, 0.10};
constexpr Colour kText{0, 0, 0};

void SetColour(cairo_t* context, const Colour& colour) {
    cairo_set_source_rgb(context, colour.red, colour.green, colour.blue);
}

/** Paints a picture over a page. */
void PaintPicture(cairo_t* context, const GreyRaster& picture, double width, double height) {
    cairo_surface_t* const surface =
        cairo_image_surface_create(CAIRO_FORMAT_RGB24, picture.width, picture.height);
    CheckCairo(cairo_surface_status(surface));
    unsigned char* const pixels = cairo_image_surface_get_data(surface);
    const int rowBytes = cairo_image_surface_get_stride(surface);
    for (int y = 0; y < picture.height; ++y) {
        auto* const row = reinterpret_cast<std::uint32_t*>(pixels + std::ptrdiff_t{y} * rowBytes);
        for (int x = 0; x < picture.width; ++x) row[x] = picture.At(x, y) * 0x010101U;
    }
    cairo_surface_mark_dirty(surface);
    cairo_save(context);
    cairo_scale(context, width / picture.width, height / picture.height);
    cairo_set_source_surface(context, surface, 0, 0);
    cairo_paint(context);
    cairo_restore(context);
    cairo_surface_destroy(surface);
}

class PdfReport {
  public:
    PdfReport(const PreflightReport& ownReport, const Document& ownDocument, Fonts& ownFonts)
        : report(ownReport),
          document(ownDocument),
          fonts(ownFonts),
          page(cairo_pdf_surface_create_for_stream(AppendToString, &file, kPaperWidth,
                                                   kPaperHeight)) {}

    std::string Finish() {
        std::size_t first = 0;
        for (const Page& shown : report.pages) {
            std::size_t last = first;
            while (last < report.symbols.size() && report.symbols[last].page == shown.number) {
                ++last;
            }
            ShowPage(shown, first, last);
            first = last;
        }
        List();
        page.Finish();
        return std::move(file);
    }

  private:
    static constexpr double kPaperWidth = 210 * kMillimetre;
    static constexpr double kPaperHeight = 297 * kMillimetre;

    /** The document's page at its size, with a frame and its number around each symbol. */
    void ShowPage(const Page& shown, std::size_t first, std::size_t last) {
        const double width = shown.width * kMillimetre;
        const double height = shown.height * kMillimetre;
        cairo_pdf_surface_set_size(page.Surface(), width, height);
        PaintPicture(page.Context(), document.Picture(shown, kResolution), width, height);
        for (std::size_t place = first; place < last; ++place) Frame(report.symbols[place], place);
        EndPage();
    }

    void Frame(const FoundSymbol& symbol, std::size_t place) {
        const Area& area = symbol.area;
        const double left = area.left * kMillimetre - kBeside;
        const double top = area.top * kMillimetre - kBeside;
        cairo_t* const context = page.Context();
        const Colour& colour = symbol.faults.empty() ? kSound : kFaulty;
        SetColour(context, colour);
        cairo_set_line_width(context, kFrame);
        cairo_rectangle(context, left, top, area.Width() * kMillimetre + 2 * kBeside,
                        area.Height() * kMillimetre + 2 * kBeside);
        cairo_stroke(context);
        const std::string number = std::to_string(place + 1);
        const auto face = fonts.Text({.isBold = true});
        const TextLine line = face->Set(number, kTextSize);
        // Outside, where the quiet zone is.
        const double right = left + kFrame / 2;
        cairo_rectangle(context, right - line.width - 4, top - kFrame / 2, line.width + 4,
                        kTextSize + 2);
        cairo_fill(context);
        SetColour(context, {1, 1, 1});
        face->Show(context, line, kTextSize, right - line.width - 2, top + kTextSize - 0.5);
    }

    void List() {
        cairo_pdf_surface_set_size(page.Surface(), kPaperWidth, kPaperHeight);
        y = kMargin + kTitleSize;
        ShowLine("Linewright check of " + Readable(report.document), kTitleSize, kText, true);
        ShowLine(
            fmt::format(
                "{} of {} symbols with faults, {} of the data not there", report.FaultySymbols(),
                report.symbols.size(),
                report.faults.size() == 1 ? "1 row" : fmt::format("{} rows", report.faults.size())),
            kTextSize, kText);
        for (const Fault& fault : report.faults) ShowLine(Sentence(fault), kTextSize, kFaulty);
        y += kLeading;
        for (std::size_t place = 0; place < report.symbols.size(); ++place) {
            const FoundSymbol& symbol = report.symbols[place];
            ShowLine(fmt::format("{:>4}  page {}  {}  {}", place + 1, symbol.page, NameOf(symbol),
                                 ShownData(symbol)),
                     kTextSize, symbol.faults.empty() ? kSound : kFaulty, true);
            for (const std::string& words : SymbolWords(symbol)) {
                ShowLine("      " + words, kTextSize, kText);
            }
            for (const Fault& fault : symbol.faults) {
                ShowLine("      " + Sentence(fault), kTextSize, kFaulty);
            }
        }
        EndPage();
    }

    void ShowLine(const std::string& text, double size, const Colour& colour, bool isBold = false) {
        if (y > kPaperHeight - kMargin) {
            EndPage();
            y = kMargin + kTextSize;
        }
        SetColour(page.Context(), colour);
        const auto face = fonts.Text({.isBold = isBold});
        face->Show(page.Context(), face->SetWithin(text, size, kPaperWidth - 2 * kMargin), size,
                   kMargin, y);
        y += std::max(kLeading, size * 1.6);
    }

    void EndPage() {
        cairo_show_page(page.Context());
        CheckCairo(cairo_status(page.Context()));
    }

    const PreflightReport& report;
    const Document& document;
    Fonts& fonts;
    std::string file;
    CairoPage page;
    double y = 0;
};

}  // namespace

std::string ReportPdf(const PreflightReport& report, const Document& document, Fonts& fonts) {
    return PdfReport(report, document, fonts).Finish();
}

}  // namespace linewright
