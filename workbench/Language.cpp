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
             {"&File", "&Quit", "L&anguage", "Turn data into text for a barcode font.",
              "The plug-in could not be started"}},
    Language{"deDE",
             {"&Datei", "&Beenden", "&Sprache", "Aus Daten wird Text für eine Barcode-Schrift.",
              "Das Zusatzmodul konnte nicht gestartet werden"}},
    Language{"frFR",
             {"&Fichier", "&Quitter", "L&angue",
              "Transformez des données en texte pour une police de codes-barres.",
              "Le module n’a pas pu démarrer"}},
    Language{
        "jaJP",
        {"ファイル(&F)", "終了(&Q)", "言語(&A)",
         "データをバーコードフォント用の文字列に変換します。", "プラグインを起動できませんでした"}},
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
