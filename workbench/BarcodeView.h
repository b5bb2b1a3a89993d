#pragma once

#include <QWidget>
#include <optional>

#include "render/BarcodeDrawing.h"

namespace linewright {

/** Shows a drawing on white, with the renderer that also exports it. */
class BarcodeView final : public QWidget {
  public:
    using QWidget::QWidget;

    /** Nothing, or a drawing at so many pixels a module. */
    void SetDrawing(std::optional<BarcodeDrawing> shown, double pixels);
    const std::optional<BarcodeDrawing>& Drawing() const { return drawing; }

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    QSize DrawnSize() const;

    std::optional<BarcodeDrawing> drawing;
    double pixelsPerModule = 1;
};

}  // namespace linewright
