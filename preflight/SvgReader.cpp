#include <cmath>
#include <map>
#include <optional>
#include <pugixml.hpp>
#include <string>

#include "merge/Failure.h"
#include "preflight/SvgPath.h"
#include "preflight/VectorPage.h"

namespace linewright {

namespace {

/** What the sides of an upright rectangle may lean, in mm. */
constexpr double kUpright = 0.002;
/** Of elements within elements, and of what is used within what is used. */
constexpr int kDeepest = 64;
/** Pieces of outlines of a page. */
constexpr std::size_t kMostSegments = 8'000'000;
/** Elements that are walked through, those that are used often each time. */
constexpr std::size_t kMostElements = 2'000'000;

/** A property of an element, which Cairo writes into its style or, newer, as an attribute. */
std::string_view PropertyOf(const pugi::xml_node& node, std::string_view name) {
    std::string_view style = node.attribute("style").value();
    while (!style.empty()) {
        const std::string_view entry = style.substr(0, style.find(';'));
        const std::size_t colon = entry.find(':');
        const std::size_t begin = entry.find_first_not_of(' ');
        if (colon != entry.npos && entry.substr(begin, colon - begin) == name) {
            return entry.substr(colon + 1);
        }
        style.remove_prefix(std::min(style.size(), entry.size() + 1));
    }
    return node.attribute(std::string(name).c_str()).value();
}

std::optional<double> NumberOf(std::string_view text) {
    return TakeNumber(text);
}

/** "rgb(100%,0%,50%)". */
bool ReadColour(std::string_view text, PaintedShape& shape) {
    if (!text.starts_with("rgb(")) return false;
    text.remove_prefix(4);
    shape.colour = 0;
    for (int part = 0; part < 3; ++part) {
        const auto number = TakeNumber(text);
        if (!number || !text.starts_with('%') || !(*number >= 0 && *number <= 100)) return false;
        text.remove_prefix(1);
        if (part == 0) shape.reflectance = *number / 100;
        shape.colour = shape.colour << 8 | static_cast<unsigned>(std::lround(*number * 2.55));
    }
    return true;
}

/** What an element takes over from those around it. */
struct Surroundings {
    Transform transform;
    std::string_view fill = "rgb(0%,0%,0%)";
    std::string_view fillOpacity{};
    Area clip{-1e9, -1e9, 1e9, 1e9};
    /** Whether a mask or a clip of another form than a rectangle decides what is seen. */
    bool isUnknown = false;
    int depth = 0;
};

Area AreaOf(const std::vector<Segment>& outline) {
    Area area{1e18, 1e18, -1e18, -1e18};
    for (const Segment& segment : outline) {
        for (const Point& point : {segment.from, segment.to}) {
            area.left = std::min(area.left, point.x);
            area.top = std::min(area.top, point.y);
            area.right = std::max(area.right, point.x);
            area.bottom = std::max(area.bottom, point.y);
        }
    }
    return area;
}

class Reader {
  public:
    explicit Reader(const pugi::xml_document& document) { Remember(document, 0); }

    VectorPage page;

    void Walk(const pugi::xml_node& parent, const Surroundings& around) {
        if (around.depth > kDeepest) throw Failure("SVG that is nested too deeply");
        for (const pugi::xml_node& node : parent.children()) Take(node, around);
    }

  private:
    void Remember(const pugi::xml_node& parent, int depth) {
        if (depth > kDeepest) throw Failure("SVG that is nested too deeply");
        for (const pugi::xml_node& node : parent.children()) {
            const char* const id = node.attribute("id").value();
            if (*id != '\0') byId.emplace(id, node);
            Remember(node, depth + 1);
        }
    }

    pugi::xml_node Referred(std::string_view reference) const {
        const std::size_t begin = reference.find('#');
        if (begin == reference.npos) return {};
        reference.remove_prefix(begin + 1);
        const auto found = byId.find(std::string(reference.substr(0, reference.find(')'))));
        return found == byId.end() ? pugi::xml_node() : found->second;
    }

    void Take(const pugi::xml_node& node, const Surroundings& around) {
        const std::string_view name = node.name();
        if (name == "defs") return;
        if (++elements > kMostElements) throw Failure("SVG with too many elements");
        Surroundings own = around;
        ++own.depth;
        if (const char* const text = node.attribute("transform").value(); *text != '\0') {
            const auto transform = ReadTransform(text);
            if (!transform) return;
            own.transform = own.transform.After(*transform);
        }
        if (node.attribute("mask")) own.isUnknown = true;
        Clip(node, own);
        const std::string_view fill = PropertyOf(node, "fill");
        if (!fill.empty()) own.fill = fill;
        const std::string_view opacity = PropertyOf(node, "fill-opacity");
        if (!opacity.empty()) own.fillOpacity = opacity;
        if (name == "g" || name == "svg" || name == "symbol") {
            Walk(node, own);
        } else if (name == "use") {
            Use(node, own);
        } else if (name == "path") {
            Path(node, own);
        } else if (name == "rect" || name == "image") {
            Rectangle(node, own);
        }
    }

    void Use(const pugi::xml_node& node, Surroundings own) {
        const double x = NumberOf(node.attribute("x").value()).value_or(0);
        const double y = NumberOf(node.attribute("y").value()).value_or(0);
        own.transform = own.transform.After({1, 0, 0, 1, x, y});
        const pugi::xml_node target = Referred(node.attribute("xlink:href").value());
        if (!target) return;
        if (own.depth > kDeepest) throw Failure("SVG that is nested too deeply");
        Take(target, own);
    }

    void Clip(const pugi::xml_node& node, Surroundings& own) {
        const std::string_view reference = node.attribute("clip-path").value();
        if (reference.empty()) return;
        const pugi::xml_node clip = Referred(reference);
        const pugi::xml_node shape = clip.first_child();
        const auto contours = ContoursOf(shape);
        if (!contours) return;
        std::vector<Segment> outline;
        AddFilled(*contours, own.transform, outline);
        if (outline.empty()) return;
        own.clip = Common(own.clip, AreaOf(outline));
        if (outline.size() > 5 || !IsUpright(outline)) own.isUnknown = true;
    }

    static bool IsUpright(const std::vector<Segment>& outline) {
        for (const Segment& segment : outline) {
            if (std::fabs(segment.from.x - segment.to.x) > kUpright &&
                std::fabs(segment.from.y - segment.to.y) > kUpright) {
                return false;
            }
        }
        return true;
    }

    static std::optional<std::vector<Contour>> ContoursOf(const pugi::xml_node& node) {
        if (std::string_view(node.name()) == "path") {
            return ReadPathData(node.attribute("d").value());
        }
        const auto number = [&node](const char* name) {
            return NumberOf(node.attribute(name).value());
        };
        const double x = number("x").value_or(0);
        const double y = number("y").value_or(0);
        const auto width = number("width");
        const auto height = number("height");
        if (!width || !height) return std::nullopt;
        return std::vector<Contour>{
            {{x, y}, {x + *width, y}, {x + *width, y + *height}, {x, y + *height}}};
    }

    static void AddFilled(const std::vector<Contour>& contours, const Transform& transform,
                          std::vector<Segment>& outline) {
        for (const Contour& contour : contours) {
            if (contour.size() < 3) continue;
            Point last = transform(contour.back());
            for (const Point& corner : contour) {
                const Point point = transform(corner);
                if (point.x != last.x || point.y != last.y) outline.push_back({last, point});
                last = point;
            }
        }
    }

    /** Adds contours, and knows those that are upright rectangles. */
    static void AddFilled(const std::vector<Contour>& contours, const Transform& transform,
                          PaintedShape& shape) {
        for (const Contour& contour : contours) {
            std::vector<Segment> outline;
            AddFilled({contour}, transform, outline);
            if (outline.size() == 4 && IsUpright(outline)) {
                shape.rectangles.push_back(AreaOf(outline));
            }
            shape.outline.insert(shape.outline.end(), outline.begin(), outline.end());
        }
    }

    /** Each straight piece as the rectangle that a pen draws. */
    static void AddStroked(const std::vector<Contour>& contours, double width, bool isSquare,
                           const Transform& transform, PaintedShape& shape) {
        for (const Contour& contour : contours) {
            for (std::size_t place = 0; place + 1 < contour.size(); ++place) {
                Point from = contour[place];
                Point to = contour[place + 1];
                const double length = std::hypot(to.x - from.x, to.y - from.y);
                if (!(length > 0)) continue;
                const double x = (to.x - from.x) / length * width / 2;
                const double y = (to.y - from.y) / length * width / 2;
                if (isSquare) {
                    from = {from.x - x, from.y - y};
                    to = {to.x + x, to.y + y};
                }
                AddFilled({{{from.x - y, from.y + x},
                            {to.x - y, to.y + x},
                            {to.x + y, to.y - x},
                            {from.x + y, from.y - x}}},
                          transform, shape);
            }
        }
    }

    void Path(const pugi::xml_node& node, const Surroundings& own) {
        const auto contours = ContoursOf(node);
        if (!contours) return;
        if (own.fill != "none") {
            PaintedShape shape;
            AddFilled(*contours, own.transform, shape);
            shape.isEvenOdd = PropertyOf(node, "fill-rule") == "evenodd";
            Add(std::move(shape), own.fill, own.fillOpacity, own);
        }
        const std::string_view stroke = PropertyOf(node, "stroke");
        if (stroke.empty() || stroke == "none") return;
        PaintedShape shape;
        AddStroked(*contours, NumberOf(PropertyOf(node, "stroke-width")).value_or(1),
                   PropertyOf(node, "stroke-linecap") == "square", own.transform, shape);
        Add(std::move(shape), stroke, PropertyOf(node, "stroke-opacity"), own);
    }

    void Rectangle(const pugi::xml_node& node, const Surroundings& own) {
        const auto contours = ContoursOf(node);
        if (!contours) return;
        PaintedShape shape;
        AddFilled(*contours, own.transform, shape);
        const bool isPicture = std::string_view(node.name()) == "image";
        Add(std::move(shape), isPicture ? "image" : own.fill, own.fillOpacity, own);
    }

    void Add(PaintedShape shape, std::string_view paint, std::string_view opacity,
             const Surroundings& own) {
        segments += shape.outline.size();
        if (segments > kMostSegments) throw Failure("SVG with too many shapes");
        shape.area = Common(AreaOf(shape.outline), own.clip);
        if (shape.area.IsEmpty()) return;
        shape.opacity = std::clamp(NumberOf(opacity).value_or(1), 0.0, 1.0);
        shape.isUnknown = own.isUnknown || !ReadColour(paint, shape);
        page.shapes.push_back(std::move(shape));
    }

    std::map<std::string, pugi::xml_node> byId;
    std::size_t segments = 0;
    std::size_t elements = 0;
};

}  // namespace

VectorPage ReadSvg(std::string_view svg, const PageScale& scale) {
    pugi::xml_document document;
    const pugi::xml_parse_result parsed = document.load_buffer(svg.data(), svg.size());
    if (!parsed || !document.child("svg")) throw Failure("SVG that cannot be read");
    Reader reader(document);
    const double k = 1 / scale.unitsPerMillimetre;
    reader.Walk(document.child("svg"),
                {.transform = {k, 0, 0, k, -scale.left * k, -scale.top * k}});
    return std::move(reader.page);
}

}  // namespace linewright
