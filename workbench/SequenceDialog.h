#pragma once

#include <QDialog>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QSpinBox>

#include "merge/Sequence.h"

namespace linewright {

/** Asks for a sequence: what it begins and ends with is shown, or why it cannot be counted. */
class SequenceDialog final : public QDialog {
  public:
    SequenceDialog(const QString& locale, QWidget* parent);

    Sequence Asked() const;

  private:
    void Show();

    QString language;
    QLineEdit* prefix;
    QLineEdit* first;
    QLineEdit* suffix;
    QSpinBox* step;
    QSpinBox* count;
    QLabel* preview;
    QDialogButtonBox* buttons;
};

}  // namespace linewright
