#pragma once

#include <QPushButton>
#include <QScrollArea>
#include <QSettings>
#include <QSplitter>
#include <QTimer>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "render/Fonts.h"
#include "requests/Service.h"
#include "workbench/DrawingPane.h"
#include "workbench/EntryFields.h"
#include "workbench/OutputActions.h"
#include "workbench/Page.h"
#include "workbench/ScanCheck.h"
#include "workbench/SizeStrip.h"
#include "workbench/Surroundings.h"
#include "workbench/TypeChooser.h"

namespace linewright {

/** The page of the window: data goes in, a barcode is drawn while it is typed, and can be taken
 *  along as text for its font, as a picture or as a file. */
class BarcodePage final : public Page {
  public:
    /** Service and settings outlive it; the settings keep type, data and sizes. `cellsPasted` hears
     *  of several cells of a spreadsheet. */
    BarcodePage(Service& plugIn, QSettings& userSettings, const Surroundings& surroundings,
                std::function<void(const QString&)> cellsPasted);
    ~BarcodePage() override;

    void Speak(const QString& locale) override;
    void Refresh() override;
    QList<QAction*> Actions(MenuPlace menu) const override;

    SizeStrip& Sizes() { return *sizes; }
    /** The barcode that is shown; none where nothing was drawn. */
    const std::optional<TakenBarcode>& Shown() const { return barcode; }

  private:
    void Arrange();
    void MakeViewActions();
    void Connect();
    void Restore();
    void Store();
    void ChangeType();
    /** Shows a barcode that was made before. */
    void Choose(const BarcodeWish& wish);
    void Draw(const BarcodeWish& wish);
    /** Shows what became of the data; the barcode, if there is one, is the one that is kept. */
    void Show(BarcodeStatus newStatus);
    void HearVerdict(const Verification* verification);

    Service& service;
    QSettings& settings;
    Fonts fonts;
    QString language;
    std::vector<TypeTexts> texts;
    std::optional<TakenBarcode> barcode;
    BarcodeStatus status;
    ScanCheck scanCheck;
    /** Nothing is written while somebody types. */
    QTimer storing;

    QSplitter* splitter;
    TypeChooser* chooser;
    EntryFields* entry;
    DrawingPane* pane;
    SizeStrip* sizes;
    OutputActions* output;
    QPushButton* copyButton;
    QPushButton* copyAsButton;
    QPushButton* exportButton;
    QAction* findType;
    QAction* goToData;
    QAction* zoomIn;
    QAction* zoomOut;
    QAction* fit;
};

}  // namespace linewright
