#include "workbench/Language.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

namespace linewright {

QLocale QtLocale(const QString& locale) {
    return QLocale(QString(locale).insert(2, QLatin1Char('_')));
}

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

QString AsSentence(const QString& text, const QString& locale) {
    if (text.isEmpty()) return text;
    const QLocale known = QtLocale(locale);
    QString sentence = known.toUpper(text.left(1)) + text.mid(1);
    static const QString ends = QString::fromUtf8(".!?…。！？");
    if (ends.contains(sentence.back())) return sentence;
    return sentence +
           (known.language() == QLocale::Japanese ? QString::fromUtf8("。") : QStringLiteral("."));
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
