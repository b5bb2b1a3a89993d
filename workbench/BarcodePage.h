#pragma once

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSettings>
#include <QSlider>
#include <QWidget>
#include <string>
#include <vector>

#include "render/Fonts.h"
#include "requests/Service.h"
#include "workbench/BarcodeView.h"
#include "workbench/Language.h"

namespace linewright {

struct DrawnBarcode;

/** The page of the window: data goes in, a barcode is drawn while it is typed, and can be taken
 *  along as text for its font or as a file. */
class BarcodePage final : public QWidget {
  public:
    /** Service and settings outlive it; the settings keep type and data. `fontFolder` is the
     *  folder of the barcode fonts, UTF-8. */
    BarcodePage(Service& plugIn, QSettings& userSettings, const std::string& fontFolder,
                const QString& locale);

    /** Makes the barcode anew, since the preferences may be others. */
    void Refresh();
    /** Writes the drawing; the ending of the name says how. False when that does not work. */
    bool Export(const QString& name) const;

  private:
    void MakeFields();
    void MakeActions();
    void Arrange();
    void Connect();
    void Restore();

    void ChangeType();
    void Show(DrawnBarcode& drawn);
    void ShowFailure(const std::string& sentence);
    void ShowMessage(const QString& text, bool isRefusal);
    void ShowBadge(const DrawnBarcode& drawn);
    void AskForExport();
    QString Words(Phrase phrase) const { return Say(phrase, language); }

    Service& service;
    QSettings& settings;
    Fonts fonts;
    QString language;
    std::vector<TypeDescription> types;

    QComboBox* typeBox;
    QLineEdit* dataBox;
    QCheckBox* checkDigitBox;
    QComboBox* ratioBox;
    QLabel* message;
    BarcodeView* view;
    QLabel* fontLabel;
    QLabel* badge;
    QSlider* zoomSlider;
    QPushButton* copyButton;
    QPushButton* exportButton;
    QString fontText;
};

}  // namespace linewright
