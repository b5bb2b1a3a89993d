#pragma once

#include <QString>

namespace linewright {

/** What the window says of its own; the plug-in's words come from the plug-in. */
enum class Phrase {
    kFileMenu,
    kQuit,
    kLanguageMenu,
    kNoPlugIn,
    // The page
    kPageType,
    kPageData,
    kPageCheckDigit,
    kPageRatio,
    kPageDrawing,
    kPageZoom,
    kPageCopy,
    kPageExport,
    kScans,
    kScansAs,
    kDoesNotScan,
    kNoScanner,
    kCannotWrite,
};

/** The phrase in a locale such as "deDE"; in English where there is no translation. */
QString Say(Phrase phrase, const QString& locale);

/** A number as it is written in a locale. */
QString NumberText(double number, int decimals, const QString& locale);

/** A language in its own words: "Deutsch" for "deDE". */
QString LanguageName(const QString& locale);

/** The locale of the user's system in the host's way of writing, such as "frFR". */
QString SystemLocale();

/** Has Qt's own texts (buttons, context menus) appear in a locale, where it has them. */
void TranslateQt(const QString& locale);

}  // namespace linewright
