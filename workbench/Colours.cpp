#include "workbench/Colours.h"

#include <array>
#include <cmath>

namespace linewright {

namespace {

double Linear(double channel) {
    return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

double Luminance(const QColor& colour) {
    return 0.2126 * Linear(colour.redF()) + 0.7152 * Linear(colour.greenF()) +
           0.0722 * Linear(colour.blueF());
}

/** Degrees on the colour circle. */
int HueOf(Tone tone) {
    constexpr int kGreen = 140;
    constexpr int kAmber = 34;
    constexpr int kRed = 0;
    if (tone == Tone::kGood) return kGreen;
    return tone == Tone::kWarning ? kAmber : kRed;
}

}  // namespace

double Contrast(const QColor& one, const QColor& other) {
    const double first = Luminance(one);
    const double second = Luminance(other);
    return (std::max(first, second) + 0.05) / (std::min(first, second) + 0.05);
}

QColor TextColour(Tone tone, const QPalette& palette) {
    const QColor background = palette.color(QPalette::Window);
    if (tone == Tone::kNeutral) return palette.color(QPalette::WindowText);
    constexpr int kSaturation = 200;
    constexpr int kMiddle = 128;
    constexpr int kLightest = 255;
    const int step = background.lightness() < kMiddle ? 1 : -1;
    int lightness = kMiddle;
    QColor colour;
    do {
        colour = QColor::fromHsl(HueOf(tone), kSaturation, lightness);
        lightness += step;
    } while (Contrast(colour, background) < kReadableContrast && lightness > 0 &&
             lightness < kLightest);
    return colour;
}

}  // namespace linewright
