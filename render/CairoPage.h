#pragma once

#include <cairo/cairo.h>

#include <string>

#include "render/Shapes.h"

namespace linewright {

/** Throws a DrawingFailure with Cairo's words unless the status is success. */
void CheckCairo(cairo_status_t status);

/** A surface of Cairo's with a context that draws on it, black and without a background. */
class CairoPage {
  public:
    /** Takes the surface over. Throws where it could not be made. */
    explicit CairoPage(cairo_surface_t* newSurface);
    CairoPage(const CairoPage&) = delete;
    CairoPage& operator=(const CairoPage&) = delete;
    ~CairoPage();

    cairo_t* Context() const { return context; }
    cairo_surface_t* Surface() const { return surface; }

    /** Ends the drawing. Throws when anything of it has failed. */
    void Finish();

  private:
    cairo_surface_t* surface;
    cairo_t* context;
};

/** A surface's writing function whose target is a std::string. */
cairo_status_t AppendToString(void* target, const unsigned char* bytes, unsigned int count);

/** Fills shapes on a context whose unit is theirs. */
void FillShapes(cairo_t* context, const Shapes& shapes);

}  // namespace linewright
