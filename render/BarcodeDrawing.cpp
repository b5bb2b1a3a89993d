#include "render/BarcodeDrawing.h"

#include <algorithm>
#include <cmath>

#include "render/TextFace.h"

namespace linewright {

namespace {

/** The white right of an add-on, in modules (ISO/IEC 15420). */
constexpr double kAddOnQuiet = 5;
constexpr char kAddOnStart = '+';
/** Glyphs higher than this have bars; those of outer digits are lower. In modules. */
constexpr double kHighestText = 9;
/** The size of text below bars and its distance from them, in narrowest bars. */
constexpr double kTextSize = 10;
constexpr double kPostalTextSize = 5.5;
constexpr double kTextGap = 0.1;
/** What a line needs above and below its baseline, in sizes. */
constexpr double kAscent = 0.93;
constexpr double kDescent = 0.24;

constexpr double kLeastHeight = 25;
constexpr double kMostHeight = 400;
constexpr int kMostReduction = 25;

struct Span {
    double from = 0;
    double to = 0;
    bool isEmpty = true;

    void Include(double low, double high) {
        from = isEmpty ? low : std::min(from, low);
        to = isEmpty ? high : std::max(to, high);
        isEmpty = false;
    }
};

std::string Rounded(double number) {
    std::string text = std::to_string(number);
    return text.substr(0, text.find('.') + 3);
}

/** What is wrong with a shape, if anything. */
std::optional<DrawingProblem> ProblemOf(const BarcodeType& type, const FontShape& shape,
                                        double millimetres) {
    using Reason = DrawingProblem::Reason;
    if (type.HasFixedHeight() && shape.heightPercent != 100) return {{Reason::kFixedHeight}};
    if (!(shape.heightPercent >= kLeastHeight && shape.heightPercent <= kMostHeight)) {
        return {{Reason::kHeight,
                 {Rounded(millimetres * kLeastHeight / shape.heightPercent),
                  Rounded(millimetres * kMostHeight / shape.heightPercent)}}};
    }
    if (!(shape.reductionPercent >= 0 && shape.reductionPercent <= kMostReduction)) {
        return {{Reason::kReduction, {std::to_string(kMostReduction)}}};
    }
    return std::nullopt;
}

}  // namespace

std::optional<BarcodeDrawing> BarcodeDrawing::Make(const std::filesystem::path& fonts,
                                                   const BarcodeType& type,
                                                   std::string_view fontString,
                                                   const DrawingOptions& options,
                                                   DrawingProblem& problem) {
    BarcodeDrawing drawing;
    drawing.face = type.face;
    drawing.module =
        options.xDimension.value_or(type.dimensions.xDimension) / type.dimensions.modulesPerX;
    if (type.face == nullptr) {
        drawing.PlaceText(type, std::string(fontString));
        return drawing;
    }
    FontShape shape{.reductionPercent = options.barWidthReduction};
    if (options.height) {
        shape.heightPercent = 100 * *options.height / (drawing.module * type.face->barHeight);
    }
    if (auto found = ProblemOf(type, shape, options.height.value_or(0) / kMillimetre)) {
        problem = *std::move(found);
        return std::nullopt;
    }
    drawing.font = BarcodeFont::Load(fonts, *type.face, shape, problem);
    if (!drawing.font) return std::nullopt;
    if (drawing.font->IsVariable()) drawing.form = Form::kPaths;
    drawing.hasHalfModules =
        type.face == &kBarsFace && fontString.find_first_of("XYZ") != std::string_view::npos;
    drawing.PlaceGlyphs(type, fontString, options);
    if (!options.text.empty()) drawing.PlaceText(type, options.text);
    return drawing;
}

double BarcodeDrawing::FontSize() const {
    return face == nullptr ? 0 : module * face->modulesPerEm;
}

void BarcodeDrawing::PlaceGlyphs(const BarcodeType& type, std::string_view fontString,
                                 const DrawingOptions& options) {
    Span ink;
    Span bars;
    Span upright;
    double x = 0;
    for (const char byte : fontString) {
        const bool isLarge = type.trait == Trait::kLargeFirstDigit && glyphs.empty();
        const GlyphBox glyph = font->GlyphOf(static_cast<unsigned char>(byte), isLarge);
        glyphs.push_back({glyph.index, x, 0});
        if (glyph.right > glyph.left) {
            ink.Include(x + glyph.left, x + glyph.right);
            upright.Include(glyph.bottom, glyph.top);
            if (glyph.top - glyph.bottom > kHighestText) {
                bars.Include(x + glyph.left, x + glyph.right);
            }
        }
        x += glyph.advance;
    }
    const bool hasAddOn = type.face->printsText && fontString.find(kAddOnStart) != fontString.npos;
    const double quietRight = hasAddOn ? kAddOnQuiet : type.dimensions.quietRight;
    const auto quiet = [&](double usual) {
        return options.quietZone ? *options.quietZone / module : usual;
    };
    const double left =
        std::floor(std::min(ink.from, bars.from - quiet(type.dimensions.quietLeft)));
    const double right = std::ceil(std::max(ink.to, bars.to + quiet(quietRight)));
    const double above = std::ceil(upright.to + type.dimensions.quietVertical);
    width = static_cast<int>(right - left);
    height = static_cast<int>(std::ceil(above - upright.from + type.dimensions.quietVertical));
    for (cairo_glyph_t& glyph : glyphs) {
        glyph.x -= left;
        glyph.y = above;
    }
}

void BarcodeDrawing::PlaceText(const BarcodeType& type, const std::string& shownText) {
    text = shownText;
    textSize = (type.HasFixedHeight() ? kPostalTextSize : kTextSize) * type.dimensions.modulesPerX;
    double wide = TextWidth(text, textSize);
    if (type.face == nullptr) {
        width = static_cast<int>(
            std::ceil(wide + type.dimensions.quietLeft + type.dimensions.quietRight));
    } else if (wide > width) {
        textSize *= width / wide;
        wide = width;
    }
    textX = (width - wide) / 2;
    textY = height + textSize * (kTextGap + kAscent);
    height = static_cast<int>(std::ceil(textY + textSize * kDescent));
}

void BarcodeDrawing::Paint(cairo_t* context, Form paintedForm) const {
    cairo_save(context);
    cairo_set_source_rgb(context, 0, 0, 0);
    if (font && !glyphs.empty()) {
        if (paintedForm == Form::kText) {
            font->Select(context);
            cairo_show_glyphs(context, glyphs.data(), static_cast<int>(glyphs.size()));
        } else {
            for (const cairo_glyph_t& glyph : glyphs) font->AddPath(context, glyph);
            cairo_fill(context);
        }
    }
    if (!text.empty()) {
        SelectTextFace(context, textSize);
        cairo_move_to(context, textX, textY);
        if (paintedForm == Form::kText) {
            cairo_show_text(context, text.c_str());
        } else {
            cairo_text_path(context, text.c_str());
            cairo_fill(context);
        }
    }
    cairo_restore(context);
}

void BarcodeDrawing::PaintArgb(std::uint32_t* pixels, int pictureWidth, int pictureHeight,
                               int rowBytes, double pixelsPerModule, double x, double y) const {
    cairo_surface_t* const surface = cairo_image_surface_create_for_data(
        reinterpret_cast<unsigned char*>(pixels), CAIRO_FORMAT_ARGB32, pictureWidth, pictureHeight,
        rowBytes);
    cairo_t* const context = cairo_create(surface);
    cairo_translate(context, x, y);
    cairo_scale(context, pixelsPerModule, pixelsPerModule);
    Paint(context, form);
    cairo_destroy(context);
    cairo_surface_destroy(surface);
}

GreyRaster BarcodeDrawing::Raster(int pixelsPerModule) const {
    GreyRaster raster{
        .width = width * pixelsPerModule, .height = height * pixelsPerModule, .pixels = {}};
    cairo_surface_t* const surface =
        cairo_image_surface_create(CAIRO_FORMAT_A8, raster.width, raster.height);
    cairo_t* const context = cairo_create(surface);
    cairo_scale(context, pixelsPerModule, pixelsPerModule);
    Paint(context, form);
    cairo_destroy(context);
    cairo_surface_flush(surface);
    const unsigned char* const ink = cairo_image_surface_get_data(surface);
    const int rowBytes = cairo_image_surface_get_stride(surface);
    for (int y = 0; ink != nullptr && y < raster.height; ++y) {
        const unsigned char* const row = ink + static_cast<std::ptrdiff_t>(y) * rowBytes;
        std::transform(row, row + raster.width, std::back_inserter(raster.pixels),
                       [](unsigned char black) { return static_cast<std::uint8_t>(255 - black); });
    }
    cairo_surface_destroy(surface);
    if (ink == nullptr) return {};
    return raster;
}

}  // namespace linewright
