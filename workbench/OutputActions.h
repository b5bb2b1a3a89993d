#pragma once

#include <QAction>
#include <QMenu>
#include <QSettings>
#include <QWidget>
#include <functional>
#include <optional>

#include "workbench/RecentBarcodes.h"
#include "workbench/TakenBarcode.h"

namespace linewright {

/** The ways out of the window for the barcode that a page shows, as actions for menus and buttons.
 */
class OutputActions final : public QObject {
  public:
    /** `shownBarcode` is what the page shows now, none where nothing was drawn; `command` the
     *  command with what it has to be told of its surroundings. All outlive this. */
    OutputActions(const std::optional<TakenBarcode>& shownBarcode, QSettings& userSettings,
                  const QStringList& command, QWidget* page);

    /** Hears of a barcode from the list of those that left last. */
    std::function<void(const BarcodeWish&)> chosenAgain;
    /** Hears when the list of those that left has become another one. */
    std::function<void()> recentChanged;

    void Speak(const QString& locale);
    /** After the barcode has become another one. */
    void Follow();

    QAction* CopyText() const { return copyText; }
    /** The pictures that can be copied. */
    QMenu* CopyAs() const { return copyAs; }
    QAction* Export() const { return exportFile; }
    QList<QAction*> FileActions() const;
    QList<QAction*> EditActions() const;
    const RecentBarcodes& Recent() const { return recent; }

  private:
    QAction* NewAction(const char* name, const QKeySequence& shortcut,
                       void (OutputActions::*act)());
    void TakeText();
    void TakePicture(FileFormat format);
    void ShowCommand();
    void AskForFile();
    void FillRecent();
    void Remember();
    void Report(const QString& sentence) const;

    const std::optional<TakenBarcode>& barcode;
    QSettings& settings;
    RecentBarcodes recent;
    QStringList program;
    QWidget* parent;
    QString language;
    QAction* copyText;
    QMenu* copyAs;
    QAction* copySvg;
    QAction* copyPdf;
    QAction* copyPng;
    QAction* showCommand;
    QAction* exportFile;
    QMenu* recentMenu;
};

}  // namespace linewright
