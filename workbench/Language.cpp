#include "workbench/Language.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

namespace linewright {

namespace {

/** A phrase in all languages that the window speaks. */
struct Translations {
    const char* enUS;
    const char* deDE;
    const char* frFR;
    const char* jaJP;
};

/** A phrase that is missing here, or a language of one, does not compile. */
Translations TranslationsOf(Phrase phrase) {
    switch (phrase) {
        case Phrase::kFileMenu: return {"&File", "&Datei", "&Fichier", "ファイル(&F)"};
        case Phrase::kQuit: return {"&Quit", "&Beenden", "&Quitter", "終了(&Q)"};
        case Phrase::kLanguageMenu: return {"L&anguage", "&Sprache", "L&angue", "言語(&A)"};
        case Phrase::kNoPlugIn:
            return {"The plug-in could not be started",
                    "Das Zusatzmodul konnte nicht gestartet werden",
                    "Le module n’a pas pu démarrer", "プラグインを起動できませんでした"};
        case Phrase::kPageType:
            return {"Barcode &type:", "Barcode&typ:", "&Type de code-barres :",
                    "バーコードの種類(&T):"};
        case Phrase::kPageData: return {"&Data:", "D&aten:", "&Données :", "データ(&D):"};
        case Phrase::kPageCheckDigit:
            return {"Add chec&k digit", "&Prüfziffer hinzufügen", "Ajouter la &clé de contrôle",
                    "チェックデジットを付加(&K)"};
        case Phrase::kPageRatio:
            return {"Wide-to-narrow &ratio:", "Verhältnis &breit zu schmal:",
                    "Rapport &large/étroit :", "太細比(&R):"};
        case Phrase::kPageDrawing: return {"Barcode", "Barcode", "Code-barres", "バーコード"};
        case Phrase::kPageZoom: return {"&Zoom:", "&Zoom:", "&Zoom :", "ズーム(&Z):"};
        case Phrase::kPageCopy:
            return {"&Copy Font Text", "Text &kopieren", "Co&pier le texte",
                    "テキストをコピー(&C)"};
        case Phrase::kPageExport:
            return {"&Export…", "&Exportieren…", "&Exporter…", "書き出し(&E)…"};
        case Phrase::kScans: return {"Scans", "Lesbar", "Lisible", "読み取れます"};
        case Phrase::kScansAs:
            return {"Scans as %1", "Lesbar als %1", "Lu comme %1", "%1 と読み取られます"};
        case Phrase::kDoesNotScan:
            return {"Does not scan", "Nicht lesbar", "Illisible", "読み取れません"};
        case Phrase::kNoScanner:
            return {"No scanner for this type", "Kein Scanner für diesen Typ",
                    "Pas de lecteur pour ce type", "この種類のスキャナはありません"};
        case Phrase::kCannotWrite:
            return {"%1 could not be written.", "%1 konnte nicht geschrieben werden.",
                    "%1 n’a pas pu être écrit.", "%1 を書き込めませんでした。"};
    }
    return {"", "", "", ""};
}

QLocale QtLocale(const QString& locale) {
    return QLocale(QString(locale).insert(2, QLatin1Char('_')));
}

}  // namespace

QString Say(Phrase phrase, const QString& locale) {
    const Translations words = TranslationsOf(phrase);
    const char* text = words.enUS;
    if (locale == QLatin1String("deDE")) text = words.deDE;
    if (locale == QLatin1String("frFR")) text = words.frFR;
    if (locale == QLatin1String("jaJP")) text = words.jaJP;
    return QString::fromUtf8(text);
}

QString NumberText(double number, int decimals, const QString& locale) {
    return QtLocale(locale).toString(number, 'f', decimals);
}

QString LanguageName(const QString& locale) {
    const QLocale known = QtLocale(locale);
    if (known.language() == QLocale::C) return locale;
    // Qt says "American English" where "English" is meant, and begins French with a small letter.
    if (known.language() == QLocale::English) return QStringLiteral("English");
    QString name = known.nativeLanguageName();
    name[0] = name[0].toUpper();
    return name;
}

QString SystemLocale() {
    return QLocale(QLocale::system().language()).name().remove(QLatin1Char('_'));
}

void TranslateQt(const QString& locale) {
    static QTranslator translator;
    QCoreApplication::removeTranslator(&translator);
    const QString folder = QLibraryInfo::path(QLibraryInfo::TranslationsPath);
    if (translator.load(QtLocale(locale), QStringLiteral("qtbase"), QStringLiteral("_"), folder))
        QCoreApplication::installTranslator(&translator);
}

}  // namespace linewright
