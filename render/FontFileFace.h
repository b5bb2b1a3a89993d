#pragma once

#include <memory>

#include "render/CairoContext.h"
#include "render/FontFile.h"
#include "render/FreeType.h"

namespace linewright {

/** Gives a reference to a face back, which a thread may do while another one opens a file. */
void CloseFace(FT_Face file);

/** What the libraries that read fonts have of a file. */
struct FontFile::Face {
    Face() = default;
    Face(const Face&) = delete;
    Face& operator=(const Face&) = delete;
    ~Face();

    void Load(unsigned int glyph) const;

    FT_Face file = nullptr;
    /** Made when it is first shown: Cairo leaks the axes of a variable font, which is never shown
     *  by it. */
    std::shared_ptr<cairo_font_face_t> shown;
};

}  // namespace linewright
