#pragma once

#include <QScrollArea>
#include <functional>
#include <optional>

#include "workbench/BarcodeView.h"

namespace linewright {

/** A drawing and how large it is shown: in whole pixels for the narrowest bar, so that bars are
 *  sharp; by a number, by the wheel with the control key, or as large as it fits. */
class DrawingArea final : public QScrollArea {
  public:
    static constexpr int kLargestZoom = 20;

    explicit DrawingArea(QWidget* parent);

    /** Hears of another zoom, whatever made it another. */
    std::function<void()> zoomChanged;

    /** Nothing, or a drawing whose narrowest bar is so many modules wide. */
    void SetDrawing(std::optional<BarcodeDrawing> shown, int modulesPerX);
    const std::optional<BarcodeDrawing>& Drawing() const { return view->Drawing(); }

    int Zoom() const { return zoom; }
    /** Takes the nearest that there is; no longer fits by itself. */
    void SetZoom(int pixels);
    bool IsFitted() const { return isFitted; }
    void SetFitted(bool on);
    /** What the drawing's size on the screen is to its size on paper; 0 without a drawing. */
    double Percent() const;

  protected:
    void wheelEvent(QWheelEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

  private:
    void Take(int pixels);
    int FittingZoom() const;
    void ShowFocus(bool hasFocus);

    BarcodeView* view;
    int modulesPerX = 1;
    int zoom = 3;
    bool isFitted = false;
};

}  // namespace linewright
