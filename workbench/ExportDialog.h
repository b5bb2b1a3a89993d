#pragma once

#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSettings>
#include <QSpinBox>

#include "workbench/TakenBarcode.h"

namespace linewright {

/** What was chosen last. */
ExportChoice KeptChoice(const QSettings& settings);

/** Asks for a file's format, name and options, and writes it: the format decides what it is, and
 *  the name's ending goes with it. What cannot be done is said here, and the dialog stays. */
class ExportDialog final : public QDialog {
  public:
    /** The settings keep folder and choice. Barcode and settings outlive it. */
    ExportDialog(const TakenBarcode& taken, QSettings& userSettings, const QString& locale,
                 QWidget* parent);

    /** The file that was written; "" before. */
    const QString& WrittenFile() const { return writtenFile; }

    void accept() override;

  private:
    void MakeFields();
    void Arrange();
    void Restore();
    void Browse();
    void ShowFormat();
    FileFormat Format() const;
    ExportChoice Choice() const;
    /** The name with the format's ending; "" where another one is refused. */
    QString NameToWrite();
    void Write(const QString& name);
    void ShowReason(const QString& reason);

    const TakenBarcode& barcode;
    QSettings& settings;
    QString language;
    QString writtenFile;
    QComboBox* formatBox;
    QLineEdit* nameBox;
    QPushButton* browseButton;
    QComboBox* inkBox;
    QSpinBox* dotsBox;
    QCheckBox* greyBox;
    QLabel* reasonLabel;
    QPushButton* saveButton;
    QPushButton* cancelButton;
};

}  // namespace linewright
