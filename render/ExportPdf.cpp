#include <cairo/cairo-pdf.h>

#include "render/CairoPage.h"
#include "render/Export.h"
#include "render/PageContent.h"
#include "render/PdfForPress.h"

namespace linewright {

std::string PdfOf(const BarcodeDrawing& drawing, const ExportOptions& options) {
    const Shapes shapes = drawing.Drawn();
    std::string file;
    CairoPage page(cairo_pdf_surface_create_for_stream(
        AppendToString, &file, shapes.width * shapes.unit, shapes.height * shapes.unit));
    cairo_scale(page.Context(), drawing.Module(), drawing.Module());
    drawing.ShowText(page.Context());
    page.Finish();
    PressPage press{options, ""};
    if (!drawing.IsFontText()) press.paths = PageContent(shapes);
    return PdfForPress(file, options.title, &press);
}

}  // namespace linewright
