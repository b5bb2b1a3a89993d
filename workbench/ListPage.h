#pragma once

#include <QAction>
#include <QCheckBox>
#include <QLabel>
#include <QMenu>
#include <QProgressBar>
#include <QPushButton>
#include <QSettings>
#include <QSortFilterProxyModel>
#include <QTableView>
#include <QTimer>
#include <memory>
#include <optional>
#include <string>

#include "requests/Service.h"
#include "workbench/Language.h"
#include "workbench/ListFields.h"
#include "workbench/ListModel.h"
#include "workbench/ListOutput.h"
#include "workbench/Page.h"
#include "workbench/TableReading.h"

namespace linewright {

/** The page for many barcodes: cells come in, each row says what became of it while it is edited,
 *  and all of them can be taken along. */
class ListPage final : public Page {
  public:
    /** Service and settings outlive it. `fontFolder` and `presetFolder` are UTF-8. */
    ListPage(Service& plugIn, QSettings& userSettings, const std::string& fontFolder,
             const std::string& presetFolder);

    void Speak(const QString& locale) override;
    void Refresh() override;
    QList<QAction*> Actions(MenuPlace menu) const override;
    bool TakeCells(const QString& cells) override;
    /** Reads a file in the place of all rows; an encoding that is not stated is found. */
    void Open(const QString& file, std::optional<Encoding> encoding = std::nullopt);
    const ListModel& Model() const { return model; }
    ListOutput& Output() { return output; }

  protected:
    void changeEvent(QEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

  private:
    void MakeTable();
    void MakeActions();
    void Arrange();
    void Connect();
    QAction* NewAction(const char* name, const QKeySequence& shortcut,
                       const std::function<void()>& work);

    void AskForFile();
    void TakeFile(const QString& file, TableReading::Result& result);
    void AskForEncoding(const QString& file);
    bool IsReplacingFine(const Phrase& question);
    void Paste();
    void Count();
    void Clear();
    void DeleteRows();
    void Append(CellTable&& cells);

    void TakeWish();
    void Judge();
    void ShowTally();
    void ShowBusy(bool isBusy);
    void ShowProgress(std::size_t done, std::size_t of);
    QString Words(const Phrase& phrase) const { return Say(phrase, language); }

    Service& service;
    QSettings& settings;
    QString language;
    ListModel model;
    QSortFilterProxyModel shown;
    QTimer slices;
    /** By the preferences that rows were judged by. */
    std::string answers;
    std::unique_ptr<TableReading> reading;

    QWidget* body;
    ListFields* fields;
    QTableView* table;
    QLabel* hint;
    QLabel* tally;
    QLabel* message;
    QCheckBox* problemsBox;
    QPushButton* copyButton;
    QPushButton* exportButton;
    QPushButton* printButton;
    QProgressBar* progress;
    QPushButton* cancelButton;
    QMenu* exportMenu;
    QMenu* filesMenu;
    QAction* openAction;
    QAction* exportAction;
    QAction* printAction;
    QAction* pasteAction;
    QAction* sequenceAction;
    QAction* deleteAction;
    QAction* copyAction;
    QAction* proofAction;
    QAction* csvAction;
    QAction* labelsAction;
    /** Last, so that a run ends before what it uses. */
    ListOutput output;
};

}  // namespace linewright
