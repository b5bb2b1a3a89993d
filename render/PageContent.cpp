#include "render/PageContent.h"

#include <initializer_list>

#include "render/Decimal.h"

namespace linewright {

namespace {

void Add(std::string& content, std::initializer_list<double> numbers, const char* operation) {
    constexpr int kDigits = 5;
    for (const double number : numbers) content += Decimal(number, kDigits) + ' ';
    content += operation;
    content += '\n';
}

void AddContours(std::string& content, const Outline& outline) {
    Point last;
    for (const PathStep& step : outline) {
        switch (step.kind) {
            case PathStep::Kind::kMove:
                if (&step != outline.data()) content += "h\n";
                Add(content, {step.end.x, step.end.y}, "m");
                break;
            case PathStep::Kind::kLine: Add(content, {step.end.x, step.end.y}, "l"); break;
            case PathStep::Kind::kCurve: {
                const Point first = CubicControl(last, step.control);
                const Point second = CubicControl(step.end, step.control);
                Add(content, {first.x, first.y, second.x, second.y, step.end.x, step.end.y}, "c");
                break;
            }
        }
        last = step.end;
    }
    if (!outline.empty()) content += "h\nf\n";
}

}  // namespace

const char* const kPageOperators =
    "/q {gsave} bind def\n"
    "/Q {grestore} bind def\n"
    "/cm {6 array astore concat} bind def\n"
    "/m {moveto} bind def\n"
    "/l {lineto} bind def\n"
    "/c {curveto} bind def\n"
    "/h {closepath} bind def\n"
    "/re {4 2 roll m 1 index 0 rlineto 0 exch rlineto neg 0 rlineto h} bind def\n"
    "/f {fill} bind def\n";

std::string PageContent(const Shapes& shapes) {
    std::string content = "q\n";
    constexpr int kUnitDigits = 9;
    const std::string unit = Decimal(shapes.unit, kUnitDigits);
    content += unit + " 0 0 -" + unit + " 0 " + Decimal(shapes.height * shapes.unit, 5) + " cm\n";
    for (const Rectangle& bar : shapes.bars) {
        Add(content, {bar.left, bar.top, bar.right - bar.left, bar.Height()}, "re");
    }
    if (!shapes.bars.empty()) content += "f\n";
    AddContours(content, shapes.outline);
    return content + "Q\n";
}

}  // namespace linewright
