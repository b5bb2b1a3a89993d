#include "workbench/Language.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>
#include <array>

namespace linewright {

namespace {

struct Language {
    const char* locale;
    std::array<const char*, static_cast<std::size_t>(Phrase::kCount)> phrases;
};

constexpr std::array kLanguages{
    Language{"enUS",
             {"&File", "&Quit", "L&anguage", "The plug-in could not be started",
              "Barcode &type:", "&Data:", "Add chec&k digit", "Wide-to-narrow &ratio:", "Barcode",
              "&Zoom:", "&Copy Font Text", "&Export…", "Scans", "Scans as %1", "Does not scan",
              "No scanner for this type", "%1 could not be written."}},
    Language{"deDE",
             {"&Datei", "&Beenden", "&Sprache", "Das Zusatzmodul konnte nicht gestartet werden",
              "Barcode&typ:", "D&aten:", "&Prüfziffer hinzufügen",
              "Verhältnis &breit zu schmal:", "Barcode", "&Zoom:", "Text &kopieren",
              "&Exportieren…", "Lesbar", "Lesbar als %1", "Nicht lesbar",
              "Kein Scanner für diesen Typ", "%1 konnte nicht geschrieben werden."}},
    Language{"frFR",
             {"&Fichier", "&Quitter", "L&angue", "Le module n’a pas pu démarrer",
              "&Type de code-barres :", "&Données :", "Ajouter la &clé de contrôle",
              "Rapport &large/étroit :", "Code-barres", "&Zoom :", "Co&pier le texte", "&Exporter…",
              "Lisible", "Lu comme %1", "Illisible", "Pas de lecteur pour ce type",
              "%1 n’a pas pu être écrit."}},
    Language{"jaJP",
             {"ファイル(&F)", "終了(&Q)", "言語(&A)", "プラグインを起動できませんでした",
              "バーコードの種類(&T):", "データ(&D):", "チェックデジットを付加(&K)",
              "太細比(&R):", "バーコード", "ズーム(&Z):", "テキストをコピー(&C)", "書き出し(&E)…",
              "読み取れます", "%1 と読み取られます", "読み取れません",
              "この種類のスキャナはありません", "%1 を書き込めませんでした。"}},
};

QLocale QtLocale(const QString& locale) {
    return QLocale(QString(locale).insert(2, QLatin1Char('_')));
}

}  // namespace

QString Say(Phrase phrase, const QString& locale) {
    const Language* language = &kLanguages.front();
    for (const Language& candidate : kLanguages)
        if (locale == QLatin1String(candidate.locale)) language = &candidate;
    return QString::fromUtf8(language->phrases[static_cast<std::size_t>(phrase)]);
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
