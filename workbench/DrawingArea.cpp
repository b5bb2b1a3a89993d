#include "workbench/DrawingArea.h"

#include <QWheelEvent>
#include <algorithm>
#include <utility>

namespace linewright {

DrawingArea::DrawingArea(QWidget* parent) : QScrollArea(parent) {
    constexpr int kFrame = 2;
    view = new BarcodeView(this);
    view->setObjectName(QStringLiteral("drawing"));
    setWidget(view);
    setWidgetResizable(true);
    setFocusPolicy(Qt::StrongFocus);
    setFrameStyle(QFrame::Box | QFrame::Plain);
    setLineWidth(kFrame);
    ShowFocus(false);
}

void DrawingArea::SetDrawing(std::optional<BarcodeDrawing> shown, int barModules) {
    modulesPerX = barModules;
    view->SetDrawing(std::move(shown), static_cast<double>(zoom) / modulesPerX);
    if (isFitted) Take(FittingZoom());
}

void DrawingArea::SetZoom(int pixels) {
    isFitted = false;
    Take(pixels);
}

void DrawingArea::SetFitted(bool on) {
    isFitted = on;
    Take(on ? FittingZoom() : zoom);
}

double DrawingArea::Percent() const {
    if (!view->Drawing()) return 0;
    constexpr double kPointsPerInch = 72;
    const double x = view->Drawing()->Module() * modulesPerX;
    return 100 * zoom / (x / kPointsPerInch * logicalDpiX());
}

void DrawingArea::wheelEvent(QWheelEvent* event) {
    if (!event->modifiers().testFlag(Qt::ControlModifier)) {
        QScrollArea::wheelEvent(event);
        return;
    }
    if (event->angleDelta().y() != 0) SetZoom(zoom + (event->angleDelta().y() > 0 ? 1 : -1));
    event->accept();
}

void DrawingArea::resizeEvent(QResizeEvent* event) {
    QScrollArea::resizeEvent(event);
    if (isFitted) Take(FittingZoom());
}

void DrawingArea::focusInEvent(QFocusEvent* event) {
    QScrollArea::focusInEvent(event);
    ShowFocus(true);
}

void DrawingArea::focusOutEvent(QFocusEvent* event) {
    QScrollArea::focusOutEvent(event);
    ShowFocus(false);
}

void DrawingArea::Take(int pixels) {
    zoom = std::clamp(pixels, 1, kLargestZoom);
    view->SetScale(static_cast<double>(zoom) / modulesPerX);
    if (zoomChanged) zoomChanged();
}

int DrawingArea::FittingZoom() const {
    if (!view->Drawing()) return zoom;
    const QSize room = maximumViewportSize();
    const double across = room.width() * modulesPerX / view->Drawing()->Width();
    const double down = room.height() * modulesPerX / view->Drawing()->Height();
    return static_cast<int>(std::min(across, down));
}

/** The frame is the focus' colour, or that of any other frame. */
void DrawingArea::ShowFocus(bool hasFocus) {
    QPalette colours = palette();
    const QPalette window = parentWidget()->palette();
    colours.setColor(QPalette::WindowText,
                     window.color(hasFocus ? QPalette::Highlight : QPalette::Mid));
    setPalette(colours);
}

}  // namespace linewright
