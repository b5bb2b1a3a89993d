#include "workbench/BarcodeView.h"

#include <QImage>
#include <QPainter>
#include <cmath>

namespace linewright {

void BarcodeView::SetDrawing(std::optional<BarcodeDrawing> shown, double pixels) {
    drawing = std::move(shown);
    pixelsPerModule = pixels;
    setMinimumSize(DrawnSize());
    update();
}

void BarcodeView::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.fillRect(rect(), Qt::white);
    if (!drawing) return;
    const double scale = devicePixelRatioF();
    QImage image(DrawnSize() * scale, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    drawing->PaintArgb(reinterpret_cast<std::uint32_t*>(image.bits()), image.width(),
                       image.height(), static_cast<int>(image.bytesPerLine()),
                       pixelsPerModule * scale, 0, 0);
    image.setDevicePixelRatio(scale);
    painter.drawImage((width() - DrawnSize().width()) / 2, (height() - DrawnSize().height()) / 2,
                      image);
}

QSize BarcodeView::DrawnSize() const {
    if (!drawing) return {};
    return {static_cast<int>(std::ceil(drawing->Width() * pixelsPerModule)),
            static_cast<int>(std::ceil(drawing->Height() * pixelsPerModule))};
}

}  // namespace linewright
