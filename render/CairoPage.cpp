#include "render/CairoPage.h"

#include <new>

#include "render/DrawingFailure.h"

namespace linewright {

void CheckCairo(cairo_status_t status) {
    if (status == CAIRO_STATUS_SUCCESS) return;
    throw DrawingFailure(DrawingProblem::Reason::kLibrary,
                         {std::string("Cairo, ") + cairo_status_to_string(status)});
}

CairoPage::CairoPage(cairo_surface_t* newSurface)
    : surface(newSurface), context(cairo_create(newSurface)) {
    cairo_set_source_rgb(context, 0, 0, 0);
    const cairo_status_t status = cairo_status(context);
    if (status == CAIRO_STATUS_SUCCESS) return;
    cairo_destroy(context);
    cairo_surface_destroy(surface);
    CheckCairo(status);
}

CairoPage::~CairoPage() {
    cairo_destroy(context);
    // Unfinished, a surface may still write to what is gone by now.
    cairo_surface_finish(surface);
    cairo_surface_destroy(surface);
}

void CairoPage::Finish() {
    CheckCairo(cairo_status(context));
    cairo_surface_finish(surface);
    CheckCairo(cairo_surface_status(surface));
}

cairo_status_t AppendToString(void* target, const unsigned char* bytes, unsigned int count) {
    try {
        static_cast<std::string*>(target)->append(reinterpret_cast<const char*>(bytes), count);
    } catch (const std::bad_alloc&) {
        return CAIRO_STATUS_NO_MEMORY;
    }
    return CAIRO_STATUS_SUCCESS;
}

void FillShapes(cairo_t* context, const Shapes& shapes) {
    for (const Rectangle& bar : shapes.bars) {
        cairo_rectangle(context, bar.left, bar.top, bar.right - bar.left, bar.Height());
    }
    cairo_fill(context);
    Point last;
    for (const PathStep& step : shapes.outline) {
        switch (step.kind) {
            case PathStep::Kind::kMove:
                cairo_close_path(context);
                cairo_move_to(context, step.end.x, step.end.y);
                break;
            case PathStep::Kind::kLine: cairo_line_to(context, step.end.x, step.end.y); break;
            case PathStep::Kind::kCurve: {
                const Point first = CubicControl(last, step.control);
                const Point second = CubicControl(step.end, step.control);
                cairo_curve_to(context, first.x, first.y, second.x, second.y, step.end.x,
                               step.end.y);
                break;
            }
        }
        last = step.end;
    }
    cairo_fill(context);
}

}  // namespace linewright
