#include "workbench/ListOutput.h"

#include <QApplication>
#include <QClipboard>
#include <QDate>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QInputDialog>
#include <QMessageBox>
#include <QPrintPreviewDialog>
#include <QPrinter>
#include <QPushButton>
#include <QSet>
#include <algorithm>
#include <numeric>
#include <utility>

#include "host/runtime/Paths.h"
#include "text/FontText.h"
#include "workbench/ListPhrases.h"
#include "workbench/ListPrinter.h"

namespace linewright {

namespace {

constexpr auto kFolderKey = "list/folder";
constexpr auto kSheetKey = "list/sheet";
constexpr std::size_t kMostPrinted = 5000;
/** So many refused rows are told of in a report. */
constexpr qsizetype kMostTold = 1000;

}  // namespace

ListOutput::ListOutput(Service& plugIn, QSettings& userSettings, ListModel& rows,
                       std::string fontFolder, QWidget* page)
    : service(plugIn),
      settings(userSettings),
      model(rows),
      fonts(std::move(fontFolder)),
      parent(page) {}

void ListOutput::Cancel() {
    if (run) run->Cancel();
}

void ListOutput::CopyTexts() const {
    QString text;
    for (std::size_t row = 0; row < model.Rows(); ++row) {
        text += QString::fromStdString(FontText(model.VerdictOf(row).fontString)) + u'\n';
    }
    QApplication::clipboard()->setText(text);
    const std::size_t refused = model.Count(RowState::kRefused);
    said(Say(phrases::kCopied, language).arg(model.Rows() - refused).arg(refused));
}

void ListOutput::AskForFolder(const std::string& format) {
    const QString folder = QFileDialog::getExistingDirectory(
        parent, parent->window()->windowTitle(), settings.value(kFolderKey).toString());
    if (folder.isEmpty() || !IsReplacingFine(folder, format)) return;
    settings.setValue(kFolderKey, folder);
    WriteFiles(folder, format);
}

bool ListOutput::IsReplacingFine(const QString& folder, const std::string& format) {
    const QStringList entries = QDir(folder).entryList(QDir::AllEntries | QDir::Hidden);
    const QSet<QString> there(entries.begin(), entries.end());
    std::size_t count = 0;
    for (std::size_t row = 0; row < model.Rows(); ++row) {
        const std::string name = RowFileName(row + 1, model.WishOf(row).data, format);
        if (there.contains(QString::fromStdString(name))) ++count;
    }
    return count == 0 || QMessageBox::question(parent, parent->window()->windowTitle(),
                                               Say(phrases::kFilesThere, language).arg(count)) ==
                             QMessageBox::Yes;
}

void ListOutput::WriteFiles(const QString& folder, const std::string& format) {
    const auto place = host::PathFromUtf8(folder.toStdString());
    Begin(
        {},
        [how = Drawing(), place, format] {
            return std::make_unique<FilesTaker>(how, place, format);
        },
        [this](const RowRunResult& result) { Report(result); });
}

QString ListOutput::AskForFile(const QString& filter, const QString& suffix) {
    QFileDialog dialog(parent, parent->window()->windowTitle(),
                       settings.value(kFolderKey).toString(), filter);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(suffix);
    connect(&dialog, &QFileDialog::filterSelected, &dialog, [&dialog](const QString& chosen) {
        dialog.setDefaultSuffix(chosen.section(QStringLiteral("*."), 1).chopped(1));
    });
    if (dialog.exec() != QDialog::Accepted) return {};
    settings.setValue(kFolderKey, dialog.directory().path());
    return dialog.selectedFiles().constFirst();
}

void ListOutput::AskForProof() {
    const QString file = AskForFile(QStringLiteral("PDF (*.pdf)"), QStringLiteral("pdf"));
    if (!file.isEmpty()) WriteProof(file);
}

void ListOutput::WriteProof(const QString& file) {
    const std::string title = Say(phrases::kProofTitle, language).toStdString();
    const std::string date = QDate::currentDate().toString(Qt::ISODate).toStdString();
    Begin(
        {},
        [how = Drawing(), name = file.toStdString(), title, date] {
            return std::make_unique<ProofTaker>(how, name, title, date);
        },
        [this](const RowRunResult& result) { Report(result); });
}

void ListOutput::AskForLabels() {
    QStringList names;
    for (const LabelSheet& sheet : kLabelSheets)
        names << QString::fromUtf8(sheet.name.data(), static_cast<qsizetype>(sheet.name.size()));
    bool isGiven = false;
    const int chosen = static_cast<int>(
        std::max<qsizetype>(0, names.indexOf(settings.value(kSheetKey).toString())));
    const QString name =
        QInputDialog::getItem(parent, parent->window()->windowTitle(),
                              Say(phrases::kLabelSheet, language), names, chosen, false, &isGiven);
    if (!isGiven) return;
    settings.setValue(kSheetKey, name);
    const QString file =
        AskForFile(QStringLiteral("PDF (*.pdf);;IDML (*.idml);;ODT (*.odt);;FODT (*.fodt)"),
                   QStringLiteral("pdf"));
    const LabelSheet* const sheet = FindLabelSheet(name.toStdString());
    if (!file.isEmpty() && sheet != nullptr) WriteLabels(file, *sheet);
}

std::vector<LabelLine> ListOutput::LinesOfLabels(const std::vector<std::string>& columns) const {
    std::vector<std::string> others;
    const ListWish& wish = model.Wish();
    for (std::size_t column = 0; column < columns.size(); ++column) {
        const bool isType = wish.type.empty() && column == wish.typeColumn;
        if (column != wish.dataColumn && !isType) others.push_back(columns[column]);
    }
    std::string title;
    if (!others.empty()) {
        title = others.front();
        others.erase(others.begin());
    }
    return UsualLines(title, others);
}

void ListOutput::WriteLabels(const QString& file, const LabelSheet& sheet) {
    const auto format = DocumentFormatOf(file.toStdString());
    if (!format) {
        QMessageBox::critical(parent, parent->window()->windowTitle(),
                              Say(phrases::kLabelEnding, language).arg(file));
        return;
    }
    std::vector<std::string> columns;
    for (std::size_t column = 0; column < model.Width(); ++column)
        columns.push_back(model.ColumnName(column).toStdString());
    const DrawingWish drawing = sizes();
    DocumentWish wish{.format = *format,
                      .layout = LayoutOn(sheet),
                      .title = QFileInfo(file).completeBaseName().toStdString(),
                      .columns = columns,
                      .xDimension = drawing.xDimension,
                      .magnification = drawing.magnification};
    if (wish.layout.lines.empty()) wish.layout.lines = LinesOfLabels(columns);
    try {
        // Asks the plug-in for the names of its types: not beside the window's thread.
        const auto own = std::make_shared<Fonts>(host::PathFromUtf8(fonts));
        const auto document = std::make_shared<Document>(service, *own, std::move(wish));
        Begin(
            {},
            [own, document, name = file.toStdString(), spoken = Spoken()] {
                return std::make_unique<LabelTaker>(name, own, document, spoken);
            },
            [this](const RowRunResult& result) { Report(result); });
    } catch (const DrawingFailure& failure) {
        Report({.failure = Sentence(failure, Spoken())});
    }
}

void ListOutput::AskForCsv() {
    const QString file = AskForFile(QStringLiteral("CSV (*.csv)"), QStringLiteral("csv"));
    if (!file.isEmpty()) WriteCsv(file);
}

void ListOutput::WriteCsv(const QString& file) {
    Begin(
        {},
        [name = file.toStdString(), columns = model.Names(), width = model.Width(),
         spoken = Spoken()] { return std::make_unique<CsvTaker>(name, columns, width, spoken); },
        [this](const RowRunResult& result) { Report(result); });
}

void ListOutput::Preview(std::vector<std::size_t> places) {
    if ((places.empty() ? model.Rows() : places.size()) > kMostPrinted) {
        QMessageBox::information(parent, parent->window()->windowTitle(),
                                 Say(phrases::kTooManyToPrint, language).arg(kMostPrinted));
        return;
    }
    const auto drawn = std::make_shared<std::vector<DrawnRow>>();
    Begin(
        std::move(places),
        [how = Drawing(), drawn] { return std::make_unique<KeepingTaker>(how, drawn); },
        [this, drawn](const RowRunResult& result) { ShowPreview(drawn, result); });
}

void ListOutput::ShowPreview(const std::shared_ptr<std::vector<DrawnRow>>& drawn,
                             const RowRunResult& result) {
    if (!result.failure.empty() || result.isCancelled) return Report(result);
    const ListPages pages{
        .rows = std::move(*drawn),
        .refused = LinesOf(result),
        .refusedTitle = Say(phrases::kSomeRefused, language),
        .tooLarge = Say(phrases::kRefusedRow, language)
                        .replace(QStringLiteral("%3"), Say(phrases::kWiderThanPage, language))};
    QPrinter printer(QPrinter::HighResolution);
    QPrintPreviewDialog preview(&printer, parent);
    connect(&preview, &QPrintPreviewDialog::paintRequested, this,
            [&pages](QPrinter* target) { PrintList(*target, pages); });
    preview.resize(parent->window()->size());
    preview.exec();
}

RowDrawing ListOutput::Drawing() const {
    return {.fonts = host::PathFromUtf8(fonts), .wish = sizes(), .language = Spoken()};
}

void ListOutput::Begin(std::vector<std::size_t> places, const RowRun::MakeTaker& makeTaker,
                       const std::function<void(const RowRunResult&)>& finished) {
    if (run || model.Rows() == 0) return;
    if (places.empty()) {
        places.resize(model.Rows());
        std::iota(places.begin(), places.end(), std::size_t{0});
    }
    const std::size_t count = places.size();
    const auto makeRow = [this, rows = std::move(places)](std::size_t place) {
        const std::size_t row = rows[place];
        RowOut out{.number = row + 1, .cells = model.CellsOf(row), .wish = model.WishOf(row)};
        out.outcome = MakeBarcodeLeniently(service, out.wish);
        return out;
    };
    run = std::make_unique<RowRun>(count, makeRow, makeTaker, Spoken());
    run->progressed = [this, count](std::size_t done) { progressed(done, count); };
    run->ended = [this, finished](const RowRunResult& result) { End(result, finished); };
    progressed(0, count);
    run->Start();
}

void ListOutput::End(const RowRunResult& result,
                     const std::function<void(const RowRunResult&)>& finished) {
    const RowRunResult kept = result;
    const auto finish = finished;
    run.release()->deleteLater();
    ended();
    finish(kept);
}

QStringList ListOutput::LinesOf(const RowRunResult& result) const {
    QStringList lines;
    for (const RowRunResult::Refused& row : result.refused) {
        lines << Say(phrases::kRefusedRow, language)
                     .arg(row.number)
                     .arg(QString::fromStdString(row.data), QString::fromStdString(row.why));
    }
    return lines;
}

void ListOutput::Report(const RowRunResult& result) {
    if (!result.failure.empty()) {
        QMessageBox::critical(
            parent, parent->window()->windowTitle(),
            Say(phrases::kFailed, language).arg(QString::fromStdString(result.failure)));
        return;
    }
    const Phrase& sentence = result.isCancelled ? phrases::kStopped : phrases::kDone;
    const QString done = Say(sentence, language).arg(result.taken);
    said(done);
    if (result.refused.empty()) return;
    QStringList lines = LinesOf(result);
    if (lines.size() > kMostTold) lines = lines.mid(0, kMostTold) << QStringLiteral("…");
    QMessageBox box(QMessageBox::Warning, parent->window()->windowTitle(),
                    done + u'\n' + Say(phrases::kSomeRefused, language).arg(result.refused.size()),
                    QMessageBox::Ok, parent);
    box.setTextFormat(Qt::PlainText);
    box.setDetailedText(lines.join(u'\n'));
    box.exec();
}

}  // namespace linewright
