#pragma once

#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QSettings>
#include <functional>

#include "render/BarcodeDrawing.h"
#include "requests/DrawingWish.h"
#include "types/BarcodeType.h"

namespace linewright {

/** The sizes of a drawing: what the user sets is a wish, all other fields show what the type and
 * the wishes make of it. */
class SizeStrip final : public QWidget {
  public:
    /** The settings keep the wishes, and outlive it. */
    SizeStrip(QSettings& userSettings, QWidget* parent);

    /** Hears of every change that the user makes. */
    std::function<void()> changed;

    void Speak(const QString& locale);
    /** The fields that the type has; wishes stay. */
    void ShowType(const BarcodeType& type);
    /** The sizes that came of it; none where nothing was drawn. */
    void ShowDrawing(const BarcodeDrawing* drawing);

    /** What is wished for of the type that is shown. */
    DrawingWish Wish() const;
    void SetWish(const DrawingWish& wanted);
    /** Stands in front of the button for the usual sizes. */
    void AddWidget(QWidget* widget);

  private:
    /** A number: what is wished for, or else what there is. */
    struct Field {
        QLabel* label = nullptr;
        QDoubleSpinBox* box = nullptr;
    };

    void MakeField(Field& field, const char* name, double least, double most, int decimals,
                   double step);
    void MakeChoices();
    void Arrange();
    void Connect();
    void Restore();
    void ShowNumber(const Field& field, double number);
    /** Shows what is wished for where a field does not show what there is. */
    void ShowWish();
    void ShowSizes(const BarcodeDrawing& drawing);
    /** After the wish has become another one. */
    void Change();
    /** Of the resolution that is written; none for none. */
    std::optional<double> Resolution() const;
    /** Of the narrowest bar, in points. */
    double XDimension() const;

    QSettings& settings;
    QString language;
    const BarcodeType* type;
    DrawingWish wish;
    Field xDimension;
    Field magnification;
    Field height;
    Field quietZone;
    Field reduction;
    QLabel* resolutionLabel;
    QComboBox* resolutionBox;
    QCheckBox* textBox;
    QCheckBox* bearerBox;
    QCheckBox* marksBox;
    QPushButton* usualButton;
    QLabel* sizeLabel;
    QHBoxLayout* buttons;
};

}  // namespace linewright
