#include "workbench/BarcodeView.h"

#include <QImage>
#include <QPaintEvent>
#include <QPainter>
#include <cmath>

namespace linewright {

void BarcodeView::SetDrawing(std::optional<BarcodeDrawing> shown, double pixels) {
    drawing = std::move(shown);
    SetScale(pixels);
}

void BarcodeView::SetScale(double pixels) {
    pixelsPerModule = pixels;
    setMinimumSize(DrawnSize());
    update();
}

void BarcodeView::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    painter.fillRect(event->rect(), Qt::white);
    if (!drawing) return;
    const QRect whole(
        QPoint((width() - DrawnSize().width()) / 2, (height() - DrawnSize().height()) / 2),
        DrawnSize());
    // A wide drawing is painted where it is seen.
    const QRect seen = whole.intersected(event->rect());
    if (seen.isEmpty()) return;
    const double scale = devicePixelRatioF();
    QImage image((QSizeF(seen.size()) * scale).toSize(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    drawing->PaintArgb(reinterpret_cast<std::uint32_t*>(image.bits()), image.width(),
                       image.height(), static_cast<int>(image.bytesPerLine()),
                       pixelsPerModule * scale, (whole.left() - seen.left()) * scale,
                       (whole.top() - seen.top()) * scale);
    image.setDevicePixelRatio(scale);
    painter.drawImage(seen.topLeft(), image);
}

QSize BarcodeView::DrawnSize() const {
    if (!drawing) return {0, 0};
    return {static_cast<int>(std::ceil(drawing->Width() * pixelsPerModule)),
            static_cast<int>(std::ceil(drawing->Height() * pixelsPerModule))};
}

}  // namespace linewright
