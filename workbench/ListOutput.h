#pragma once

#include <QObject>
#include <QPointer>
#include <QSettings>
#include <QWidget>
#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "requests/Service.h"
#include "workbench/ListModel.h"
#include "workbench/RowRun.h"
#include "workbench/RowTakers.h"

namespace linewright {

/** Takes the barcodes of a list out of the window: as files, on paper, as text. One run at a time;
 *  questions and reports are dialogs of the page. */
class ListOutput final : public QObject {
  public:
    /** All of it outlives this. */
    ListOutput(Service& plugIn, QSettings& userSettings, ListModel& rows, std::string fontFolder,
               QWidget* page);

    /** How barcodes are drawn. */
    std::function<DrawingWish()> sizes;
    /** Hear how far a run is, that it has ended, and a sentence for the user. */
    std::function<void(std::size_t done, std::size_t of)> progressed;
    std::function<void()> ended;
    std::function<void(const QString&)> said;

    void Speak(const QString& locale) { language = locale; }
    bool IsBusy() const { return run != nullptr; }
    void Cancel();

    /** The font texts of all rows to the clipboard. */
    void CopyTexts() const;
    /** Asks for a folder, and writes a file of the format ("svg") for each row. */
    void AskForFolder(const std::string& format);
    void WriteFiles(const QString& folder, const std::string& format);
    void AskForProof();
    void WriteProof(const QString& file);
    /** Asks for a sheet of labels and a file. */
    void AskForLabels();
    /** The ending of the name says what is written. */
    void WriteLabels(const QString& file, const LabelSheet& sheet);
    void AskForCsv();
    void WriteCsv(const QString& file);
    /** Shows the pages of these rows before they are printed; of all, if there are none. */
    void Preview(std::vector<std::size_t> places);

  private:
    /** Has rows taken: those of the places, or all. */
    void Begin(std::vector<std::size_t> places, const RowRun::MakeTaker& makeTaker,
               const std::function<void(const RowRunResult&)>& finished);
    void End(const RowRunResult& result, const std::function<void(const RowRunResult&)>& finished);
    void Report(const RowRunResult& result);
    void ShowPreview(const std::shared_ptr<std::vector<DrawnRow>>& drawn,
                     const RowRunResult& result);
    QStringList LinesOf(const RowRunResult& result) const;
    /** A file's name to be written, "" where the user thought better of it. */
    QString AskForFile(const QString& filter, const QString& suffix);
    bool IsReplacingFine(const QString& folder, const std::string& format);
    RowDrawing Drawing() const;
    /** What stands on a label: the columns that are neither data nor type. */
    std::vector<LabelLine> LinesOfLabels(const std::vector<std::string>& columns) const;
    Language Spoken() const { return LanguageOf(language.toStdString()); }

    Service& service;
    QSettings& settings;
    ListModel& model;
    std::string fonts;
    QWidget* parent;
    QString language;
    std::unique_ptr<RowRun> run;
};

}  // namespace linewright
