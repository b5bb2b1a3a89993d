#pragma once

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QSettings>
#include <QSlider>
#include <QWidget>
#include <functional>
#include <string>
#include <vector>

#include "render/Fonts.h"
#include "requests/Service.h"
#include "workbench/BarcodeView.h"
#include "workbench/Language.h"
#include "workbench/Page.h"

namespace linewright {

struct DrawnBarcode;

/** The page of the window: data goes in, a barcode is drawn while it is typed, and can be taken
 *  along as text for its font or as a file. */
class BarcodePage final : public Page {
  public:
    /** Service and settings outlive it; the settings keep type and data. `fontFolder` is the
     *  folder of the barcode fonts, UTF-8; `cellsPasted` hears of several cells of
     *  a spreadsheet. */
    BarcodePage(Service& plugIn, QSettings& userSettings, const std::string& fontFolder,
                std::function<void(const QString&)> cellsPasted);

    void Speak(const QString& locale) override;

    void Refresh() override;
    QList<QAction*> Actions(MenuPlace menu) const override;
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
    QString Words(const Phrase& phrase) const { return Say(phrase, language); }

    Service& service;
    QSettings& settings;
    Fonts fonts;
    std::function<void(const QString&)> offerCells;
    QString language;
    std::vector<TypeDescription> types;

    QComboBox* typeBox;
    QLineEdit* dataBox;
    QCheckBox* checkDigitBox;
    QComboBox* ratioBox;
    QLabel* message;
    QLabel* typeLabel;
    QLabel* dataLabel;
    QLabel* ratioLabel;
    QLabel* zoomLabel;
    QScrollArea* area;
    BarcodeView* view;
    QLabel* fontLabel;
    QLabel* badge;
    QSlider* zoomSlider;
    QPushButton* copyButton;
    QPushButton* exportButton;
    QString fontText;
};

}  // namespace linewright
