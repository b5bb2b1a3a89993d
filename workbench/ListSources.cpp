// Where the rows of the list page come from.

#include <QApplication>
#include <QClipboard>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QInputDialog>
#include <QMessageBox>
#include <QMimeData>
#include <QSignalBlocker>
#include <array>
#include <set>
#include <utility>

#include "workbench/ListPage.h"
#include "workbench/ListPhrases.h"
#include "workbench/SequenceDialog.h"

namespace linewright {

namespace {

constexpr auto kFolderKey = "list/folder";
constexpr int kWholePerCent = 100;

/** The file that is dragged; "" for anything else. */
QString FileIn(const QMimeData& dragged) {
    const QList<QUrl> places = dragged.urls();
    return places.isEmpty() ? QString() : places.constFirst().toLocalFile();
}

}  // namespace

void ListPage::AskForFile() {
    const QString file = QFileDialog::getOpenFileName(
        this, window()->windowTitle(), settings.value(kFolderKey).toString(),
        Words(phrases::kListFiles) + QStringLiteral(" (*.csv *.tsv *.txt);;") +
            Words(phrases::kAllFiles) + QStringLiteral(" (*)"));
    if (file.isEmpty()) return;
    settings.setValue(kFolderKey, QFileInfo(file).path());
    if (IsReplacingFine(phrases::kReallyReplace)) Open(file);
}

bool ListPage::IsReplacingFine(const Phrase& question) {
    return model.Rows() == 0 ||
           QMessageBox::question(this, window()->windowTitle(),
                                 Words(question).arg(model.Rows())) == QMessageBox::Yes;
}

void ListPage::Open(const QString& file, std::optional<Encoding> encoding) {
    if (reading || output.IsBusy()) return;
    reading = std::make_unique<TableReading>(file.toStdString(), encoding);
    const QString name = QFileInfo(file).fileName();
    reading->progressed = [this](int perCent) { progress->setValue(perCent); };
    reading->ended = [this, file](TableReading::Result& result) {
        TableReading::Result kept = std::move(result);
        const QString opened = file;
        reading.release()->deleteLater();
        ShowBusy(false);
        TakeFile(opened, kept);
    };
    ShowBusy(true);
    progress->setRange(0, kWholePerCent);
    progress->setValue(0);
    progress->setFormat(Words(phrases::kReading).arg(name));
    reading->Start();
}

void ListPage::TakeFile(const QString& file, TableReading::Result& result) {
    if (result.isOtherEncoding) return AskForEncoding(file);
    if (!result.failure.empty()) {
        QMessageBox::critical(this, window()->windowTitle(),
                              Words(phrases::kFailed).arg(QString::fromStdString(result.failure)));
        return;
    }
    if (result.isCancelled) return;
    const bool hasHeader = HasNames(result.table);
    model.SetTable(std::move(result.table), hasHeader);
    {
        const QSignalBlocker silence(fields->headerBox);
        fields->headerBox->setChecked(hasHeader);
    }
    fields->ShowColumns(model);
    TakeWish();
    table->setFocus();
}

void ListPage::AskForEncoding(const QString& file) {
    const QStringList names{QStringLiteral("Windows-1252"), QStringLiteral("Mac Roman"),
                            QStringLiteral("UTF-16LE"), QStringLiteral("UTF-16BE"),
                            QStringLiteral("UTF-8")};
    constexpr std::array kEncodings{Encoding::kWindows1252, Encoding::kMacRoman,
                                    Encoding::kUtf16LittleEndian, Encoding::kUtf16BigEndian,
                                    Encoding::kUtf8};
    bool isGiven = false;
    const QString name = QInputDialog::getItem(
        this, window()->windowTitle(),
        Words(phrases::kWhichEncoding).arg(QFileInfo(file).fileName()), names, 0, false, &isGiven);
    if (isGiven) Open(file, kEncodings.at(static_cast<std::size_t>(names.indexOf(name))));
}

void ListPage::Paste() {
    const QString text = QApplication::clipboard()->text();
    if (text.isEmpty()) {
        message->setText(Words(phrases::kNothingToPaste));
        return;
    }
    TakeCells(text);
}

bool ListPage::TakeCells(const QString& cells) {
    if (reading || output.IsBusy()) return false;
    Append(TableOfCells(cells.toStdString()));
    return true;
}

void ListPage::Append(CellTable&& cells) {
    message->clear();
    if (model.Width() == 0) {
        TableReading::Result first{.table = std::move(cells)};
        return TakeFile({}, first);
    }
    model.Append(std::move(cells));
    fields->ShowColumns(model);
    TakeWish();
}

void ListPage::Count() {
    SequenceDialog dialog(language, this);
    if (dialog.exec() != QDialog::Accepted) return;
    const std::size_t column = model.Width() == 0 ? 0 : fields->Wish().dataColumn;
    CellTable cells;
    for (std::string& text : TextsOf(dialog.Asked())) {
        std::vector<std::string> row(column + 1);
        row[column] = std::move(text);
        cells.Add(std::move(row));
    }
    Append(std::move(cells));
}

void ListPage::Clear() {
    if (!IsReplacingFine(phrases::kReallyClear)) return;
    TableReading::Result nothing;
    TakeFile({}, nothing);
}

void ListPage::DeleteRows() {
    std::set<int> rows;
    for (const QModelIndex& index : table->selectionModel()->selectedIndexes())
        rows.insert(shown.mapToSource(index).row());
    // From below, in pieces that lie together.
    while (!rows.empty()) {
        const int last = *rows.rbegin();
        int first = last;
        while (rows.contains(first - 1)) --first;
        rows.erase(rows.find(first), rows.end());
        model.removeRows(first, last - first + 1, {});
    }
    ShowTally();
}

void ListPage::dragEnterEvent(QDragEnterEvent* event) {
    if (body->isEnabled() &&
        (event->mimeData()->hasText() || !FileIn(*event->mimeData()).isEmpty()))
        event->acceptProposedAction();
}

void ListPage::dropEvent(QDropEvent* event) {
    event->acceptProposedAction();
    const QString file = FileIn(*event->mimeData());
    if (file.isEmpty()) {
        TakeCells(event->mimeData()->text());
    } else if (IsReplacingFine(phrases::kReallyReplace)) {
        Open(file);
    }
}

}  // namespace linewright
