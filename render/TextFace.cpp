#include "render/TextFace.h"

#include "text/Utf8.h"

namespace linewright {

void SelectTextFace(cairo_t* context, double size, bool isBold) {
    cairo_font_options_t* const options = cairo_font_options_create();
    cairo_font_options_set_hint_style(options, CAIRO_HINT_STYLE_NONE);
    cairo_font_options_set_hint_metrics(options, CAIRO_HINT_METRICS_OFF);
    cairo_font_options_set_antialias(options, CAIRO_ANTIALIAS_GRAY);
    cairo_set_font_options(context, options);
    cairo_font_options_destroy(options);
    cairo_select_font_face(context, "monospace", CAIRO_FONT_SLANT_NORMAL,
                           isBold ? CAIRO_FONT_WEIGHT_BOLD : CAIRO_FONT_WEIGHT_NORMAL);
    cairo_set_font_size(context, size);
}

double TextWidth(const std::string& text, double size) {
    cairo_surface_t* const surface = cairo_recording_surface_create(CAIRO_CONTENT_ALPHA, nullptr);
    cairo_t* const context = cairo_create(surface);
    SelectTextFace(context, size);
    cairo_text_extents_t extents{};
    cairo_text_extents(context, text.c_str(), &extents);
    cairo_destroy(context);
    cairo_surface_destroy(surface);
    return extents.x_advance;
}

std::string FittedText(const std::string& text, double size, double width) {
    if (text.empty() || TextWidth(text, size) <= width) return text;
    std::u32string kept = CharactersFromUtf8(text);
    std::string fitted;
    do {
        kept.pop_back();
        fitted = Utf8FromCharacters(kept) + "…";
    } while (!kept.empty() && TextWidth(fitted, size) > width);
    return fitted;
}

}  // namespace linewright
