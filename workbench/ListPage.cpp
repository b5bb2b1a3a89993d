#include "workbench/ListPage.h"

#include <QApplication>
#include <QClipboard>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QElapsedTimer>
#include <QEvent>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QMessageBox>
#include <QMimeData>
#include <QStyle>
#include <QVBoxLayout>
#include <array>
#include <utility>

#include "host/runtime/Paths.h"
#include "workbench/Keep.h"
#include "workbench/ListPhrases.h"
#include "workbench/RowJudge.h"
#include "workbench/SequenceDialog.h"
#include "workbench/Text.h"

namespace linewright {

namespace {

constexpr auto kTypeKey = "list/type";
constexpr auto kFirstType = "_QVT_BARCODE_EAN13_";
/** In milliseconds, with some left for the last request. */
constexpr qint64 kSlice = 6;
constexpr int kSpacing = 12;
constexpr std::array kFormats{"svg", "pdf", "eps", "png", "tiff"};

}  // namespace

ListPage::ListPage(Service& plugIn, QSettings& userSettings, const std::string& fontFolder,
                   const std::string& presetFolder)
    : service(plugIn),
      settings(userSettings),
      output(plugIn, userSettings, model, fontFolder, this) {
    setAcceptDrops(true);
    body = new QWidget(this);
    fields = new ListFields(host::PathFromUtf8(presetFolder), body);
    MakeTable();
    MakeActions();
    Arrange();
    Connect();
}

void ListPage::MakeTable() {
    constexpr int kStateWidth = 400;
    table = new QTableView(body);
    table->setObjectName(QStringLiteral("rows"));
    shown.setSourceModel(&model);
    shown.setFilterRole(ListModel::kStateRole);
    shown.setFilterKeyColumn(0);
    table->setModel(&shown);
    table->setAlternatingRowColors(true);
    table->setSelectionBehavior(QAbstractItemView::SelectItems);
    table->setTabKeyNavigation(false);
    table->setWordWrap(false);
    table->horizontalHeader()->setMinimumSectionSize(2 * table->fontMetrics().lineSpacing());
    table->horizontalHeader()->setStretchLastSection(true);
    table->horizontalHeader()->resizeSection(0, kStateWidth);
    table->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    table->verticalHeader()->setDefaultSectionSize(table->fontMetrics().lineSpacing() * 3 / 2);
    hint = new QLabel(table->viewport());
    hint->setObjectName(QStringLiteral("hint"));
    hint->setWordWrap(true);
    hint->setAlignment(Qt::AlignCenter);
    auto* const centre = new QVBoxLayout(table->viewport());
    centre->addWidget(hint);
}

QAction* ListPage::NewAction(const char* name, const QKeySequence& shortcut,
                             const std::function<void()>& work) {
    auto* const action = new QAction(this);
    action->setObjectName(QLatin1String(name));
    action->setShortcut(shortcut);
    connect(action, &QAction::triggered, this, work);
    return action;
}

void ListPage::MakeActions() {
    exportMenu = new QMenu(this);
    filesMenu = exportMenu->addMenu(QString());
    for (const char* const format : kFormats) {
        filesMenu->addAction(QString::fromLatin1(format).toUpper() + u'…', this,
                             [this, format] { output.AskForFolder(format); });
    }
    proofAction = NewAction("proof", {}, [this] { output.AskForProof(); });
    csvAction = NewAction("csv", {}, [this] { output.AskForCsv(); });
    labelsAction = NewAction("labels", {}, [this] { output.AskForLabels(); });
    exportMenu->addActions({proofAction, labelsAction, csvAction});
    openAction = NewAction("openAction", QKeySequence::Open, [this] { AskForFile(); });
    exportAction = exportMenu->menuAction();
    printAction = NewAction("printAction", QKeySequence::Print, [this] {
        std::vector<std::size_t> places;
        const QModelIndexList rows = table->selectionModel()->selectedRows();
        if (rows.size() > 1) {
            for (const QModelIndex& row : rows)
                places.push_back(static_cast<std::size_t>(shown.mapToSource(row).row()));
        }
        output.Preview(std::move(places));
    });
    pasteAction = NewAction("pasteAction", QKeySequence::Paste, [this] { Paste(); });
    sequenceAction = NewAction("sequenceAction", {}, [this] { Count(); });
    deleteAction = NewAction("deleteAction", QKeySequence::Delete, [this] { DeleteRows(); });
    deleteAction->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    table->addAction(deleteAction);
    copyAction =
        NewAction("copyAction", Qt::CTRL | Qt::SHIFT | Qt::Key_C, [this] { output.CopyTexts(); });
}

void ListPage::Arrange() {
    constexpr int kMargin = 16;
    const auto named = [](auto* widget, const char* name) {
        widget->setObjectName(QLatin1String(name));
        return widget;
    };
    tally = named(new QLabel(this), "tally");
    message = named(new QLabel(this), "message");
    message->setTextFormat(Qt::PlainText);
    problemsBox = named(new QCheckBox(body), "problems");
    copyButton = named(new QPushButton(body), "copy");
    exportButton = named(new QPushButton(body), "export");
    exportButton->setMenu(exportMenu);
    printButton = named(new QPushButton(body), "print");
    progress = named(new QProgressBar(this), "progress");
    cancelButton = named(new QPushButton(this), "cancel");
    for (QWidget* const widget :
         {static_cast<QWidget*>(progress), static_cast<QWidget*>(cancelButton)}) {
        QSizePolicy policy = widget->sizePolicy();
        policy.setRetainSizeWhenHidden(true);
        widget->setSizePolicy(policy);
        widget->hide();
    }
    auto* const buttons = new QHBoxLayout;
    buttons->addWidget(problemsBox);
    buttons->addStretch();
    for (QPushButton* const button : {copyButton, exportButton, printButton})
        buttons->addWidget(button);
    auto* const inner = new QVBoxLayout(body);
    inner->setContentsMargins({});
    inner->setSpacing(kSpacing);
    inner->addWidget(fields);
    inner->addWidget(table, 1);
    inner->addLayout(buttons);
    auto* const states = new QHBoxLayout;
    states->addWidget(tally);
    states->addWidget(message, 1);
    states->addWidget(progress);
    states->addWidget(cancelButton);
    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    column->setSpacing(kSpacing);
    column->addWidget(body, 1);
    column->addLayout(states);
    setFocusProxy(fields->pasteButton);
}

void ListPage::Connect() {
    output.sizes = [this] { return fields->sizes->Wish(); };
    output.progressed = [this](std::size_t done, std::size_t of) { ShowProgress(done, of); };
    output.ended = [this] { ShowBusy(false); };
    output.said = [this](const QString& sentence) { message->setText(sentence); };
    fields->changed = [this] { TakeWish(); };
    connect(fields->openButton, &QPushButton::clicked, openAction, &QAction::trigger);
    connect(fields->pasteButton, &QPushButton::clicked, pasteAction, &QAction::trigger);
    connect(fields->sequenceButton, &QPushButton::clicked, sequenceAction, &QAction::trigger);
    connect(fields->clearButton, &QPushButton::clicked, this, [this] { Clear(); });
    connect(fields->headerBox, &QCheckBox::toggled, this, [this](bool isThere) {
        model.SetHeader(isThere);
        fields->ShowColumns(model);
        TakeWish();
    });
    connect(copyButton, &QPushButton::clicked, copyAction, &QAction::trigger);
    connect(printButton, &QPushButton::clicked, printAction, &QAction::trigger);
    connect(cancelButton, &QPushButton::clicked, this, [this] {
        output.Cancel();
        if (reading) reading->Cancel();
    });
    connect(problemsBox, &QCheckBox::toggled, this, [this](bool isOn) {
        // The states of warnings and refusals, see RowState.
        shown.setFilterRegularExpression(isOn ? QStringLiteral("[23]") : QString());
    });
    connect(&slices, &QTimer::timeout, this, [this] { Judge(); });
    connect(&model, &ListModel::dataChanged, this, [this] { slices.start(0); });
}

void ListPage::Speak(const QString& locale) {
    language = locale;
    output.Speak(locale);
    fields->Speak(service.Types(), locale);
    const QStyle& look = *style();
    model.SetWords(
        {ListModel::Shown{Words(phrases::kRowWaiting), {}},
         {Words(phrases::kRowMade), look.standardIcon(QStyle::SP_DialogApplyButton)},
         {Words(phrases::kRowWarned), look.standardIcon(QStyle::SP_MessageBoxWarning)},
         {Words(phrases::kRowRefused), look.standardIcon(QStyle::SP_MessageBoxCritical)}},
        Words(phrases::kRowState), Words(phrases::kRowBecause));
    table->setAccessibleName(Words(phrases::kRows));
    hint->setText(Words(phrases::kEmptyList));
    problemsBox->setText(Words(phrases::kOnlyProblems));
    copyButton->setText(Words(phrases::kCopyTexts));
    exportButton->setText(Words(phrases::kExportList));
    printButton->setText(Words(phrases::kPrintList));
    cancelButton->setText(Words(phrases::kCancel));
    for (QPushButton* const button : {copyButton, exportButton, printButton}) {
        button->setMinimumWidth(0);
        button->setMinimumWidth(button->sizeHint().width() + kSpacing);
    }
    progress->setAccessibleName(Words(phrases::kRows));
    filesMenu->setTitle(Words(phrases::kAFileARow));
    const std::pair<QAction*, const Phrase&> actions[]{
        {openAction, phrases::kOpenList},     {exportAction, phrases::kExportList},
        {printAction, phrases::kPrintList},   {pasteAction, phrases::kPasteCells},
        {sequenceAction, phrases::kSequence}, {deleteAction, phrases::kDeleteRows},
        {copyAction, phrases::kCopyTexts},    {proofAction, phrases::kProof},
        {labelsAction, phrases::kLabels},     {csvAction, phrases::kResultsCsv}};
    for (const auto& [action, phrase] : actions) action->setText(Words(phrase));
    message->clear();
    answers = AnswersByPreferences(service);
    if (model.Width() == 0 && model.Wish().type.empty())
        fields->ChooseType(
            settings.value(kTypeKey, QLatin1String(kFirstType)).toString().toStdString());
    fields->ShowColumns(model);
    TakeWish();
}

void ListPage::Refresh() {
    fields->sizes->Reload();
    std::string now = AnswersByPreferences(service);
    if (now == std::exchange(answers, now)) return;
    model.JudgeAnew();
}

QList<QAction*> ListPage::Actions(MenuPlace menu) const {
    switch (menu) {
        case MenuPlace::kFile: return {openAction, exportAction, printAction};
        case MenuPlace::kEdit: return {pasteAction, sequenceAction, deleteAction, copyAction};
        case MenuPlace::kView: return {};
    }
    return {};
}

void ListPage::changeEvent(QEvent* event) {
    // The plug-in is about to stop.
    if (event->type() == QEvent::EnabledChange && !isEnabled()) output.Cancel();
    Page::changeEvent(event);
}

void ListPage::TakeWish() {
    model.SetWish(fields->Wish());
    if (!model.Wish().type.empty())
        Keep(settings, QLatin1String(kTypeKey), QString::fromStdString(model.Wish().type));
    ShowTally();
    slices.start(0);
}

void ListPage::Judge() {
    if (!isEnabled()) return slices.stop();
    QElapsedTimer clock;
    clock.start();
    PlainBarcodes plain(service);
    const Language spoken = LanguageOf(language.toStdString());
    const auto judge = [&](const BarcodeWish& wish) {
        return VerdictOn(service, plain, wish, spoken);
    };
    const int first = table->rowAt(0);
    const int last = table->rowAt(table->viewport()->height() - 1);
    const int end = last < 0 ? shown.rowCount() : last + 1;
    try {
        const int source = first < 0 ? 0 : shown.mapToSource(shown.index(first, 0)).row();
        while (clock.elapsed() < kSlice) {
            if (model.JudgeNext(judge, source, end - first)) continue;
            slices.stop();
            break;
        }
    } catch (const RequestFailure& failure) {
        slices.stop();
        message->setText(QString::fromStdString(Sentence(failure, spoken)));
    }
    const bool isWaiting = slices.isActive();
    model.ShowJudged();
    if (!isWaiting) slices.stop();
    ShowTally();
}

void ListPage::ShowTally() {
    const std::size_t waiting = model.Count(RowState::kWaiting);
    QString text = Words(phrases::kTally)
                       .arg(model.Rows())
                       .arg(model.Count(RowState::kMade) + model.Count(RowState::kWarned))
                       .arg(model.Count(RowState::kWarned))
                       .arg(model.Count(RowState::kRefused));
    if (waiting > 0) text += Words(phrases::kTallyWaiting).replace("%5", QString::number(waiting));
    tally->setText(text);
    hint->setVisible(model.Rows() == 0);
    const bool isAny = model.Rows() > 0;
    const bool isReady = isAny && waiting == 0;
    copyAction->setEnabled(isReady);
    copyButton->setEnabled(isReady);
    for (QAction* const action : {exportAction, printAction, deleteAction})
        action->setEnabled(isAny && body->isEnabled());
    for (QPushButton* const button : {exportButton, printButton, fields->clearButton})
        button->setEnabled(isAny);
    fields->headerBox->setEnabled(isAny);
}

void ListPage::ShowBusy(bool isBusy) {
    body->setEnabled(!isBusy);
    progress->setVisible(isBusy);
    cancelButton->setVisible(isBusy);
    for (QAction* const action : {openAction, pasteAction, sequenceAction})
        action->setEnabled(!isBusy);
    if (isBusy) {
        message->clear();
        cancelButton->setFocus();
    }
    ShowTally();
}

void ListPage::ShowProgress(std::size_t done, std::size_t of) {
    if (!progress->isVisible()) ShowBusy(true);
    progress->setRange(0, static_cast<int>(of));
    progress->setValue(static_cast<int>(done));
    progress->setFormat(Words(phrases::kWorking).arg(done).arg(of));
}

}  // namespace linewright
