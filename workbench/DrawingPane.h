#pragma once

#include <QLabel>
#include <QPushButton>
#include <QSettings>
#include <QSpinBox>

#include "requests/DrawnBarcode.h"
#include "workbench/Badge.h"
#include "workbench/BarcodeStatus.h"
#include "workbench/DrawingArea.h"

namespace linewright {

/** A barcode as it is drawn, with the badge that says whether it scans, its font, and how large it
 *  is shown. */
class DrawingPane final : public QWidget {
  public:
    /** The settings keep how large it is shown, and outlive it. */
    DrawingPane(QSettings& userSettings, QWidget* parent);

    void Speak(const QString& locale);
    /** Nothing, where nothing was drawn. */
    void ShowDrawing(const DrawnBarcode* drawn);
    void ShowBadge(const BarcodeStatus& status);
    DrawingArea& Area() { return *area; }

  private:
    void Arrange();
    void ShowZoom();

    QSettings& settings;
    QString language;
    DrawingArea* area;
    Badge* badge;
    QLabel* fontLabel;
    QLabel* zoomLabel;
    QSpinBox* zoomBox;
    QLabel* percentLabel;
    QPushButton* fitButton;
};

}  // namespace linewright
