#include "preflight/SvgPath.h"

#include <array>
#include <charconv>
#include <cmath>

namespace linewright {

namespace {

/** Straight pieces of a curve; a digit's curve of this many lies within a hundredth of its size. */
constexpr int kPieces = 6;
constexpr double kLargest = 1e9;

bool IsSeparator(char character) {
    return character == ' ' || character == ',' || character == '\n' || character == '\t' ||
           character == '\r';
}

void SkipSeparators(std::string_view& text) {
    while (!text.empty() && IsSeparator(text.front())) text.remove_prefix(1);
}

std::optional<Point> TakePoint(std::string_view& list) {
    const auto x = TakeNumber(list);
    const auto y = x ? TakeNumber(list) : std::nullopt;
    if (!y) return std::nullopt;
    return Point{*x, *y};
}

bool TakeCurve(std::string_view& list, Contour& contour) {
    std::array<Point, 4> points;
    points[0] = contour.back();
    for (std::size_t place = 1; place < points.size(); ++place) {
        const auto point = TakePoint(list);
        if (!point) return false;
        points[place] = *point;
    }
    for (int piece = 1; piece <= kPieces; ++piece) {
        const double t = static_cast<double>(piece) / kPieces;
        const double s = 1 - t;
        const std::array<double, 4> weights{s * s * s, 3 * s * s * t, 3 * s * t * t, t * t * t};
        Point on;
        for (std::size_t place = 0; place < points.size(); ++place) {
            on.x += weights[place] * points[place].x;
            on.y += weights[place] * points[place].y;
        }
        contour.push_back(on);
    }
    return true;
}

}  // namespace

Transform Transform::After(const Transform& first) const {
    const Point origin = (*this)({first.x0, first.y0});
    return {xx * first.xx + xy * first.yx,
            yx * first.xx + yy * first.yx,
            xx * first.xy + xy * first.yy,
            yx * first.xy + yy * first.yy,
            origin.x,
            origin.y};
}

double Transform::Scale() const {
    return std::sqrt(std::fabs(xx * yy - xy * yx));
}

std::optional<double> TakeNumber(std::string_view& list) {
    SkipSeparators(list);
    double number = 0;
    const auto [end, error] = std::from_chars(list.data(), list.data() + list.size(), number);
    if (error != std::errc() || !(std::fabs(number) <= kLargest)) return std::nullopt;
    list.remove_prefix(static_cast<std::size_t>(end - list.data()));
    return number;
}

std::optional<std::vector<Contour>> ReadPathData(std::string_view data) {
    std::vector<Contour> contours;
    for (SkipSeparators(data); !data.empty(); SkipSeparators(data)) {
        const char letter = data.front();
        data.remove_prefix(1);
        if (letter == 'Z') continue;
        if (letter == 'M') {
            const auto point = TakePoint(data);
            if (!point) return std::nullopt;
            contours.push_back({*point});
            continue;
        }
        if (contours.empty()) return std::nullopt;
        if (letter == 'L') {
            const auto point = TakePoint(data);
            if (!point) return std::nullopt;
            contours.back().push_back(*point);
        } else if (letter != 'C' || !TakeCurve(data, contours.back())) {
            return std::nullopt;
        }
    }
    return contours;
}

std::optional<Transform> ReadTransform(std::string_view text) {
    const auto numbersOf = [&text](std::string_view name, auto& numbers) {
        if (!text.starts_with(name)) return false;
        std::string_view list = text.substr(name.size());
        for (double& number : numbers) {
            const auto taken = TakeNumber(list);
            if (!taken) return false;
            number = *taken;
        }
        SkipSeparators(list);
        return list == ")";
    };
    std::array<double, 6> six{};
    if (numbersOf("matrix(", six)) return Transform{six[0], six[1], six[2], six[3], six[4], six[5]};
    std::array<double, 2> two{};
    if (numbersOf("translate(", two)) return Transform{1, 0, 0, 1, two[0], two[1]};
    return std::nullopt;
}

}  // namespace linewright
