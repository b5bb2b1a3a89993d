#pragma once

#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QGridLayout>
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

    /** What fields of the type that is shown ask for. */
    DrawingWish Wish() const;
    void SetWish(const DrawingWish& wish);
    /** Stands in front of the button for the usual sizes. */
    void AddWidget(QWidget* widget);

  private:
    /** A number that is the user's, or else shows what there is. */
    struct Field {
        QLabel* label = nullptr;
        QDoubleSpinBox* box = nullptr;
        bool isSet = false;
    };

    void MakeField(Field& field, const char* name, double least, double most, int decimals,
                   double step);
    void Arrange();
    void Restore();
    void Store();
    void ShowNumber(Field& field, double number);
    void TakeNumber(Field& field);
    void TakeMagnification();
    void TakeUsual();
    void Change();
    /** Of the resolution that is written; none for none. */
    std::optional<double> Resolution() const;
    bool IsTextPrinted() const;

    QSettings& settings;
    QString language;
    const BarcodeType* type = nullptr;
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
    std::optional<bool> isTextWanted;
    QPushButton* usualButton;
    QLabel* sizeLabel;
    QGridLayout* grid;
    QHBoxLayout* buttons;
};

}  // namespace linewright
