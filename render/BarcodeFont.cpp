#include "render/BarcodeFont.h"

#include <algorithm>

#include "text/FontCharacters.h"

namespace linewright {

namespace {

/** Rectangles in fonts that print digits are bars where they are higher than this, in modules. */
constexpr double kHighestText = 9;

std::filesystem::path FileOf(const std::filesystem::path& folder, const BarcodeFace& face,
                             bool isStatic) {
    const std::string stem(face.fileStem);
    if (isStatic) return folder / (stem + ".ttf");
    return folder / "variable" / (stem + "-Variable.ttf");
}

/** Whether a contour is four sides along the axes, the last one back to its start. */
bool IsRectangle(const PathStep* first, const PathStep* last) {
    if (last - first != 5) return false;
    for (const PathStep* step = first + 1; step != last; ++step) {
        const Point from = (step - 1)->end;
        const bool isAlongAxis = from.x == step->end.x || from.y == step->end.y;
        if (step->kind != PathStep::Kind::kLine || !isAlongAxis) return false;
    }
    return true;
}

Rectangle RectangleOf(const PathStep* first) {
    const Point a = first[0].end;
    const Point b = first[2].end;
    return {std::min(a.x, b.x), std::min(a.y, b.y), std::max(a.x, b.x), std::max(a.y, b.y)};
}

}  // namespace

BarcodeFont::BarcodeFont(const std::filesystem::path& folder, const BarcodeFace& barcodeFace,
                         double heightPercent)
    : face(barcodeFace),
      barHeight(barcodeFace.barHeight * heightPercent / 100),
      isStatic(!barcodeFace.printsText || heightPercent == 100),
      stretch(barcodeFace.printsText ? 1 : heightPercent / 100),
      file(FileOf(folder, barcodeFace, isStatic),
           {DrawingProblem::Reason::kNoFont, {FileOf(folder, barcodeFace, isStatic).string()}}) {
    if (isStatic || file.SetBarHeight(heightPercent)) return;
    throw DrawingFailure(DrawingProblem::Reason::kNoAxes,
                         {FileOf(folder, barcodeFace, isStatic).string()});
}

BarcodeGlyph BarcodeFont::GlyphOf(unsigned char byte, bool isLarge) const {
    BarcodeGlyph glyph{.index = file.GlyphOf(FontCharacter(byte))};
    if (isLarge) glyph.index = file.LargerOf(glyph.index);
    glyph.advance = file.AdvanceOf(glyph.index) * face.modulesPerEm;
    Outline outline = file.OutlineOf(glyph.index);
    const auto inModules = [this](Point& point) {
        point = {point.x * face.modulesPerEm, -point.y * face.modulesPerEm * stretch};
    };
    for (PathStep& step : outline) {
        inModules(step.control);
        inModules(step.end);
    }
    const PathStep* const end = outline.data() + outline.size();
    for (const PathStep* first = outline.data(); first != end;) {
        const PathStep* const last = std::find_if(first + 1, end, [](const PathStep& step) {
            return step.kind == PathStep::Kind::kMove;
        });
        // Glyph 0, for a byte that the font does not have, is a box with a hole.
        const bool isBar = glyph.index != 0 && IsRectangle(first, last) &&
                           (!face.printsText || RectangleOf(first).Height() > kHighestText);
        if (isBar) {
            glyph.bars.push_back(RectangleOf(first));
        } else {
            glyph.text.insert(glyph.text.end(), first, last);
        }
        first = last;
    }
    return glyph;
}

}  // namespace linewright
