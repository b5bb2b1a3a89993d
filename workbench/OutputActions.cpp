#include "workbench/OutputActions.h"

#include <QApplication>
#include <QClipboard>
#include <QImage>
#include <QMainWindow>
#include <QMessageBox>
#include <QMimeData>
#include <QStatusBar>

#include "text/FontText.h"
#include "types/BarcodeTypes.h"
#include "words/Words.h"
#include "workbench/CommandDialog.h"
#include "workbench/ExportDialog.h"
#include "workbench/Language.h"
#include "workbench/OutputPhrases.h"
#include "workbench/ShellLine.h"

namespace linewright {

namespace {

/** As a file of the format is called on a clipboard. */
QString MimeType(FileFormat format) {
    if (format == FileFormat::kSvg) return QStringLiteral("image/svg+xml");
    if (format == FileFormat::kPdf) return QStringLiteral("application/pdf");
    return QStringLiteral("image/png");
}

QMimeData* MimeOf(const std::string& content, FileFormat format) {
    const QByteArray bytes = QByteArray::fromStdString(content);
    auto* const data = new QMimeData;
    data->setData(MimeType(format), bytes);
    if (format == FileFormat::kSvg) data->setText(QString::fromUtf8(bytes));
    if (format == FileFormat::kPng) data->setImageData(QImage::fromData(bytes));
    return data;
}

/** A recent barcode as an entry of a menu. */
QString EntryOf(const BarcodeWish& wish) {
    constexpr int kLongest = 40;
    const std::string_view type = FindTypeByPrefix(wish.type)->shortName;
    QString data = QString::fromStdString(wish.data).simplified();
    if (data.size() > kLongest) data = data.left(kLongest) + QStringLiteral("…");
    const QString text =
        QString::fromLatin1(type.data(), static_cast<qsizetype>(type.size())) + QLatin1String("  ");
    return text + data.replace('&', QLatin1String("&&"));
}

}  // namespace

OutputActions::OutputActions(const std::optional<TakenBarcode>& shownBarcode,
                             QSettings& userSettings, const QStringList& command, QWidget* page)
    : QObject(page),
      barcode(shownBarcode),
      settings(userSettings),
      recent(userSettings),
      program(command),
      parent(page) {
    copyText = NewAction("copyText", QKeySequence(QStringLiteral("Ctrl+Shift+C")),
                         &OutputActions::TakeText);
    copyAs = new QMenu(page);
    const auto addPicture = [this](const char* name, const char* keys, FileFormat format) {
        QAction* const action = NewAction(name, QKeySequence(QLatin1String(keys)), nullptr);
        connect(action, &QAction::triggered, this, [this, format] { TakePicture(format); });
        copyAs->addAction(action);
        return action;
    };
    copySvg = addPicture("copySvg", "Ctrl+Shift+S", FileFormat::kSvg);
    copyPdf = addPicture("copyPdf", "Ctrl+Shift+P", FileFormat::kPdf);
    copyPng = addPicture("copyPng", "Ctrl+Shift+G", FileFormat::kPng);
    showCommand = NewAction("showCommand", QKeySequence(QStringLiteral("Ctrl+Shift+M")),
                            &OutputActions::ShowCommand);
    exportFile =
        NewAction("export", QKeySequence(QStringLiteral("Ctrl+E")), &OutputActions::AskForFile);
    recentMenu = new QMenu(page);
    recentMenu->menuAction()->setObjectName(QStringLiteral("recent"));
    // Another window may have added to it.
    connect(recentMenu, &QMenu::aboutToShow, this, [this] { FillRecent(); });
}

QAction* OutputActions::NewAction(const char* name, const QKeySequence& shortcut,
                                  void (OutputActions::*act)()) {
    auto* const action = new QAction(parent);
    action->setObjectName(QLatin1String(name));
    action->setShortcut(shortcut);
    if (act != nullptr) connect(action, &QAction::triggered, this, act);
    return action;
}

void OutputActions::Speak(const QString& locale) {
    language = locale;
    copyText->setText(Say(phrases::kMenuCopyText, locale));
    copySvg->setText(Say(phrases::kMenuCopySvg, locale));
    copyPdf->setText(Say(phrases::kMenuCopyPdf, locale));
    copyPng->setText(Say(phrases::kMenuCopyPng, locale));
    showCommand->setText(Say(phrases::kMenuShowCommand, locale));
    exportFile->setText(Say(phrases::kMenuExport, locale));
    recentMenu->setTitle(Say(phrases::kMenuRecent, locale));
    FillRecent();
}

void OutputActions::Follow() {
    const bool isThere = barcode.has_value();
    for (QAction* const action : {copyText, copySvg, copyPdf, copyPng, showCommand, exportFile}) {
        action->setEnabled(isThere);
    }
    copyAs->setEnabled(isThere);
}

QList<QAction*> OutputActions::FileActions() const {
    return {exportFile, recentMenu->menuAction()};
}

QList<QAction*> OutputActions::EditActions() const {
    return {copyText, copySvg, copyPdf, copyPng, showCommand};
}

void OutputActions::TakeText() {
    if (!barcode) return;
    const BarcodeOutcome& outcome = barcode->drawn.outcome;
    QApplication::clipboard()->setText(QString::fromStdString(FontText(outcome.bytes)));
    const BarcodeFace* const face = outcome.type->face;
    if (face == nullptr) {
        Report(Say(phrases::kPlainTextCopied, language));
    } else {
        const std::string family(face->family);
        Report(Say(phrases::kTextCopied, language).arg(QString::fromStdString(family)));
    }
    Remember();
}

void OutputActions::TakePicture(FileFormat format) {
    if (!barcode) return;
    ExportChoice choice = KeptChoice(settings);
    choice.format = format;
    try {
        QApplication::clipboard()->setMimeData(MimeOf(barcode->Content(choice), format));
    } catch (const DrawingFailure& failure) {
        const std::string sentence = Sentence(failure, LanguageOf(language.toStdString()));
        QMessageBox::critical(parent, parent->window()->windowTitle(),
                              AsSentence(QString::fromStdString(sentence), language));
        return;
    }
    Report(Say(phrases::kPictureCopied, language).arg(EndingOf(format).toUpper()));
    Remember();
}

void OutputActions::ShowCommand() {
    if (!barcode) return;
    const ExportChoice choice = KeptChoice(settings);
    const QString file = barcode->FileName() + '.' + EndingOf(choice.format);
    CommandDialog(ShellLine(program, *barcode, choice, file), language, parent).exec();
}

void OutputActions::AskForFile() {
    if (!barcode) return;
    // The page may draw anew while the dialog is open.
    const TakenBarcode taken = *barcode;
    ExportDialog dialog(taken, settings, language, parent);
    if (dialog.exec() != QDialog::Accepted) return;
    Report(Say(phrases::kFileWritten, language).arg(dialog.WrittenFile()));
    Remember();
}

void OutputActions::FillRecent() {
    recentMenu->clear();
    settings.sync();
    const std::vector<BarcodeWish> wishes = recent.All();
    for (const BarcodeWish& wish : wishes) {
        recentMenu->addAction(EntryOf(wish), this, [this, wish] {
            if (chosenAgain) chosenAgain(wish);
        });
    }
    recentMenu->addSeparator();
    QAction* const clear =
        recentMenu->addAction(Say(phrases::kMenuClearRecent, language), this, [this] {
            recent.Clear();
            if (recentChanged) recentChanged();
        });
    clear->setObjectName(QStringLiteral("clearRecent"));
    clear->setEnabled(!wishes.empty());
}

void OutputActions::Remember() {
    recent.Add(barcode->wish);
    if (recentChanged) recentChanged();
}

void OutputActions::Report(const QString& sentence) const {
    constexpr int kShown = 6000;
    if (auto* const window = qobject_cast<QMainWindow*>(parent->window()))
        window->statusBar()->showMessage(sentence, kShown);
}

}  // namespace linewright
