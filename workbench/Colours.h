#pragma once

#include <QColor>
#include <QPalette>

namespace linewright {

/** What a message or a badge is about; always said in words too. */
enum class Tone { kNeutral, kGood, kWarning, kBad };

/** The contrast of two colours by the Web Content Accessibility Guidelines 2.1, 1 to 21. */
double Contrast(const QColor& one, const QColor& other);

/** The least contrast that texts have. */
constexpr double kReadableContrast = 4.5;

/** The tone's colour for text on the palette's windows, readable there whether they are light or
 *  dark; the palette's own for the neutral tone. */
QColor TextColour(Tone tone, const QPalette& palette);

}  // namespace linewright
