#include "workbench/Text.h"

#include <QRegularExpression>

namespace linewright {

QString TextFromHost(const PMString& text) {
    QString result;
    for (int32 i = 0; i < text.CharCount(); ++i) {
        const char32_t character = text.GetWChar(i);
        result += QString::fromUcs4(&character, 1);
    }
    return result;
}

PMString TextForHost(const QString& text) {
    PMString result;
    for (const uint character : text.toUcs4()) result.AppendW(character);
    return result;
}

QString SpokenText(const QString& caption) {
    // In Japanese the mnemonic stands in brackets behind the text, and a colon can be a wide one.
    static const QRegularExpression bracketed(QStringLiteral("\\s*\\(&.\\)"));
    static const QRegularExpression colon(QStringLiteral("\\s*[:\uFF1A]\\s*$"));
    QString text = caption;
    return text.remove(bracketed).remove(QLatin1Char('&')).remove(colon);
}

}  // namespace linewright
