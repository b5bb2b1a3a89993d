#include "workbench/ShellLine.h"

#include <QRegularExpression>
#include <charconv>

#include "requests/WrittenLength.h"
#include "types/Dimensions.h"

namespace linewright {

namespace {

/** The shortest text that is the same number again. */
std::string Exactly(double number) {
    char text[32];
    const auto result = std::to_chars(std::begin(text), std::end(text), number);
    return {text, result.ptr};
}

/** A length as the command reads it back to the last bit, in millimetres where that can be. */
QString Written(const Length& length) {
    if (length.isInX) return QString::fromStdString(Exactly(length.number) + "x");
    const std::string millimetres =
        QString::number(length.number / kMillimetre, 'g', 6).toStdString() + "mm";
    const auto read = FindLength(millimetres, true);
    const bool isExact = read && read->number == length.number;
    return QString::fromStdString(isExact ? millimetres : Exactly(length.number) + "pt");
}

/** A reduction in X-dimensions is written in per cent. */
QString WrittenReduction(const Length& length) {
    if (!length.isInX) return Written(length);
    const std::string percent = QString::number(100 * length.number, 'g', 6).toStdString() + "%";
    const auto read = FindReduction(percent);
    return read && read->number == length.number ? QString::fromStdString(percent)
                                                 : Written(length);
}

QStringList WordsOf(const BarcodeWish& wish) {
    QStringList options;
    if (wish.checkCharacter != 0) options << QStringLiteral("--check");
    if (wish.ratio != 2.0) {
        options << QStringLiteral("--ratio") << QString::fromStdString(Exactly(wish.ratio));
    }
    return options;
}

QStringList WordsOf(const DrawingWish& wish, const BarcodeType& type) {
    QStringList options;
    if (const auto x = XDimensionOf(wish, type)) {
        options << QStringLiteral("--x-dimension") << Written({*x});
    }
    if (wish.height) options << QStringLiteral("--height") << Written(*wish.height);
    if (wish.quietZone) options << QStringLiteral("--quiet-zone") << Written(*wish.quietZone);
    if (wish.barWidthReduction) {
        options << QStringLiteral("--bar-width-reduction")
                << WrittenReduction(*wish.barWidthReduction);
    }
    if (wish.isTextWanted) {
        options << (*wish.isTextWanted ? QStringLiteral("--text") : QStringLiteral("--no-text"));
    }
    if (wish.dotsPerInch) {
        options << QStringLiteral("--dpi") << QString::fromStdString(Exactly(*wish.dotsPerInch));
    }
    if (wish.isFitted) options << QStringLiteral("--fit");
    if (wish.hasBearerBars) options << QStringLiteral("--bearer");
    if (wish.hasMarginMarks) options << QStringLiteral("--margin-marks");
    return options;
}

QStringList WordsOf(const TakenBarcode& barcode, const ExportChoice& choice) {
    QStringList options;
    if (HasInks(choice.format) && choice.ink != QLatin1String("black")) {
        options << QStringLiteral("--ink") << choice.ink;
    }
    if (!IsPicture(choice.format)) return options;
    if (choice.isGrey) options << QStringLiteral("--grey");
    if (const auto pixels = PixelsNear(*barcode.drawn.drawing, choice.dotsPerInch)) {
        options << QStringLiteral("--pixels-per-module") << QString::number(*pixels);
    }
    return options;
}

}  // namespace

QString ShellWord(const QString& word) {
    static const QRegularExpression plain(QStringLiteral("^[A-Za-z0-9_./:=,%@+-]+$"));
    if (plain.match(word).hasMatch() && !word.endsWith('\n')) return word;
    return '\'' + QString(word).replace('\'', QLatin1String("'\\''")) + '\'';
}

QString ShellLine(const QStringList& program, const TakenBarcode& barcode,
                  const ExportChoice& choice, const QString& file) {
    const QString data = QString::fromStdString(barcode.wish.data);
    const std::string_view type = barcode.drawn.outcome.type->shortName;
    // "-" is standard input for the command, and a name that begins so an option.
    const bool isStandardInput = data == QLatin1String("-");
    QStringList words = program;
    words << QStringLiteral("draw") << WordsOf(barcode.wish)
          << WordsOf(barcode.drawing, *barcode.drawn.outcome.type) << WordsOf(barcode, choice)
          << QStringLiteral("-o") << file << QStringLiteral("--")
          << QString::fromLatin1(type.data(), static_cast<qsizetype>(type.size())) << data;
    for (QString& word : words) word = ShellWord(word);
    const QString line = words.join(' ');
    return isStandardInput ? QStringLiteral("printf %s - | ") + line : line;
}

}  // namespace linewright
