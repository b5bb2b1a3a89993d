#include "workbench/Badge.h"

#include <QEvent>

namespace linewright {

namespace {

constexpr int kInnerMargin = 4;

}  // namespace

Badge::Badge(QWidget* parent) : QLabel(parent) {
    QFont bold = font();
    bold.setBold(true);
    setFont(bold);
    setTextFormat(Qt::PlainText);
    setFrameStyle(QFrame::Box | QFrame::Plain);
    setMargin(kInnerMargin);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
}

void Badge::Show(Tone shownTone, const QString& shownWords, const QString& spoken) {
    tone = shownTone;
    words = shownWords;
    setAccessibleName(spoken);
    setToolTip(QStringLiteral("<qt>%1</qt>").arg(words.toHtmlEscaped()));
    Fit();
    Colour();
}

QSize Badge::sizeHint() const {
    const int frame = 2 * (kInnerMargin + frameWidth());
    return {fontMetrics().horizontalAdvance(words) + frame, fontMetrics().height() + frame};
}

void Badge::resizeEvent(QResizeEvent* event) {
    QLabel::resizeEvent(event);
    Fit();
}

void Badge::changeEvent(QEvent* event) {
    QLabel::changeEvent(event);
    // Its own colours change too: the window's are what they hang on.
    if (event->type() == QEvent::PaletteChange && parentWidget() != nullptr) Colour();
}

void Badge::Fit() {
    setText(
        fontMetrics().elidedText(words, Qt::ElideRight, contentsRect().width() - 2 * kInnerMargin));
}

void Badge::Colour() {
    const QColor colour = TextColour(tone, parentWidget()->palette());
    QPalette colours = palette();
    if (colours.color(QPalette::WindowText) == colour) return;
    colours.setColor(QPalette::WindowText, colour);
    setPalette(colours);
}

}  // namespace linewright
