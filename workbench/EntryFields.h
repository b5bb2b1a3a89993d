#pragma once

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QWidget>
#include <functional>

#include "requests/BarcodeOutcome.h"
#include "workbench/BarcodeStatus.h"
#include "workbench/DataEdit.h"
#include "workbench/TypeTexts.h"

namespace linewright {

/** What a barcode is made of: the data and the options of its type; and what is said about it. */
class EntryFields final : public QWidget {
  public:
    explicit EntryFields(QWidget* parent);

    /** Hears of every change that the user makes. */
    std::function<void()> changed;

    void Speak(const QString& locale);
    /** Offers what a type offers, and begins with what it begins with. */
    void ShowType(const TypeTexts& type);
    void ShowMessage(const BarcodeStatus& status);

    DataEdit& Data() { return *dataBox; }
    /** What is in the fields, for the type that is shown. */
    BarcodeWish Wish() const;
    /** Fills the fields; the options where the type offers them. */
    void SetWish(const BarcodeWish& wish);

  protected:
    void changeEvent(QEvent* event) override;

  private:
    void Arrange();
    QString CheckDigitHelp() const;
    void Colour();

    QString language;
    const BarcodeType* type = nullptr;
    QString sample;
    Tone tone = Tone::kNeutral;
    QLabel* heading;
    QLabel* usage;
    QLabel* dataLabel;
    DataEdit* dataBox;
    QCheckBox* checkDigitBox;
    QLabel* ratioLabel;
    QComboBox* ratioBox;
    QLabel* message;
    QPushButton* sampleButton;
};

}  // namespace linewright
