#pragma once

// What Cairo draws with, for headers that only hand it on.
using cairo_t = struct _cairo;
using cairo_font_face_t = struct _cairo_font_face;
