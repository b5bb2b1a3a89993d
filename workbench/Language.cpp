#include "workbench/Language.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

namespace linewright {

namespace {

QLocale QtLocale(const QString& locale) {
    return QLocale(QString(locale).insert(2, QLatin1Char('_')));
}

}  // namespace

QString Say(const Phrase& phrase, const QString& locale) {
    const char* text = phrase.enUS;
    if (locale == QLatin1String("deDE")) text = phrase.deDE;
    if (locale == QLatin1String("frFR")) text = phrase.frFR;
    if (locale == QLatin1String("jaJP")) text = phrase.jaJP;
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
