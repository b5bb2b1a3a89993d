#include "workbench/DataEdit.h"

#include <QFontDatabase>
#include <QRegularExpression>
#include <algorithm>

namespace linewright {

namespace {

/** How much of a text is from before when it has been edited up to a cursor: what was put in is
 * what stands between this and the cursor. */
qsizetype PlaceOfInsertion(const QString& before, const QString& after, qsizetype cursor) {
    const qsizetype keptBehind = after.size() - cursor;
    const qsizetype most = std::min(std::max<qsizetype>(before.size() - keptBehind, 0), cursor);
    return std::mismatch(before.begin(), before.begin() + most, after.begin()).first -
           before.begin();
}

const QRegularExpression& BetweenCells() {
    static const QRegularExpression between(QStringLiteral("[\\r\\n\\t\\x{2028}\\x{2029}]"));
    return between;
}

}  // namespace

DataEdit::DataEdit(QWidget* parent) : QLineEdit(parent) {
    // In data every character counts: a zero is not to be taken for a letter.
    setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    connect(this, &QLineEdit::textEdited, this, [this](const QString& text) { MindCells(text); });
    connect(this, &QLineEdit::textChanged, this, [this] { before = text(); });
}

void DataEdit::SetData(const QString& text) {
    setText(text);
    before = text;
}

// No key types a tab or a line break into a line: such a character was pasted or dropped.
void DataEdit::MindCells(const QString& text) {
    const qsizetype place = PlaceOfInsertion(before, text, cursorPosition());
    const QString inserted = text.mid(place, cursorPosition() - place);
    if (!inserted.contains(BetweenCells())) return;
    static const QRegularExpression lastBreak(
        QStringLiteral("(\\r\\n|[\\r\\n\\x{2028}\\x{2029}])$"));
    const QString cell = QString(inserted).remove(lastBreak);
    if (cell.contains(BetweenCells())) {
        setText(before);
        if (cellsPasted) cellsPasted(inserted);
        return;
    }
    setText(QString(text).replace(place, inserted.size(), cell));
    setCursorPosition(static_cast<int>(place + cell.size()));
}

}  // namespace linewright
