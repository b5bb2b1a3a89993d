#pragma once

#include <QLocale>
#include <QString>

namespace linewright {

/** What the window says of its own, in all languages that it speaks; the plug-in's words come from
 *  the plug-in. */
struct Phrase {
    const char* enUS;
    const char* deDE;
    const char* frFR;
    const char* jaJP;
};

/** The phrase in a locale such as "deDE"; in English where there is no translation. */
QString Say(const Phrase& phrase, const QString& locale);

/** The locale as Qt knows it. */
QLocale QtLocale(const QString& locale);

/** A sentence that the rooms below leave bare: with a capital letter in front and a full stop. */
QString AsSentence(const QString& text, const QString& locale);

/** A number as it is written in a locale. */
QString NumberText(double number, int decimals, const QString& locale);

/** A language in its own words: "Deutsch" for "deDE". */
QString LanguageName(const QString& locale);

/** The locale of the user's system in the host's way of writing, such as "frFR". */
QString SystemLocale();

/** Has Qt's own texts (buttons, context menus) appear in a locale, where it has them. */
void TranslateQt(const QString& locale);

}  // namespace linewright
