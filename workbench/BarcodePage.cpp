#include "workbench/BarcodePage.h"

#include <QHBoxLayout>
#include <QVBoxLayout>
#include <utility>

#include "host/runtime/Paths.h"
#include "types/BarcodeTypes.h"
#include "words/Words.h"
#include "workbench/Keep.h"
#include "workbench/OutputPhrases.h"
#include "workbench/PagePhrases.h"

namespace linewright {

namespace {

constexpr auto kTypeKey = "page/type";
constexpr auto kDataKey = "page/data";
constexpr auto kSplitKey = "page/split";

// What is there when the window opens for the first time.
constexpr auto kFirstType = "_QVT_BARCODE_EAN13_";
constexpr auto kFirstData = "4006381333931";

}  // namespace

BarcodePage::BarcodePage(Service& plugIn, QSettings& userSettings, const Surroundings& surroundings,
                         std::function<void(const QString&)> cellsPasted)
    : service(plugIn),
      settings(userSettings),
      fonts(host::PathFromUtf8(surroundings.fonts)),
      scanCheck([this](const Verification* verification) { HearVerdict(verification); }) {
    chooser = new TypeChooser(this);
    entry = new EntryFields(this);
    entry->Data().cellsPasted = std::move(cellsPasted);
    pane = new DrawingPane(settings, this);
    sizes = new SizeStrip(settings, this);
    output = new OutputActions(barcode, settings, surroundings.command, this);
    copyButton = new QPushButton(this);
    copyButton->setObjectName(QStringLiteral("copy"));
    copyAsButton = new QPushButton(this);
    copyAsButton->setObjectName(QStringLiteral("copyAs"));
    copyAsButton->setMenu(output->CopyAs());
    exportButton = new QPushButton(this);
    exportButton->setObjectName(QStringLiteral("export"));
    MakeViewActions();
    Arrange();
    Restore();
    Connect();
}

BarcodePage::~BarcodePage() {
    if (!texts.empty()) Store();
}

void BarcodePage::MakeViewActions() {
    const auto make = [this](const QKeySequence& keys, auto act) {
        auto* const action = new QAction(this);
        action->setShortcut(keys);
        connect(action, &QAction::triggered, this, act);
        return action;
    };
    findType = make(QKeySequence::Find, [this] { chooser->StartSearch(); });
    goToData = make(QKeySequence(QStringLiteral("Ctrl+D")), [this] {
        entry->Data().setFocus();
        entry->Data().selectAll();
    });
    zoomIn = make(QKeySequence::ZoomIn, [this] { pane->Area().SetZoom(pane->Area().Zoom() + 1); });
    zoomOut =
        make(QKeySequence::ZoomOut, [this] { pane->Area().SetZoom(pane->Area().Zoom() - 1); });
    fit = make(QKeySequence(QStringLiteral("Ctrl+0")), [this] { pane->Area().SetFitted(true); });
}

void BarcodePage::Arrange() {
    constexpr int kMargin = 10;
    constexpr int kSpacing = 8;
    constexpr int kChooserWidth = 270;
    constexpr int kRestWidth = 630;
    auto* const inner = new QWidget(this);
    auto* const rows = new QVBoxLayout(inner);
    rows->setContentsMargins({});
    rows->setSpacing(kSpacing);
    rows->addWidget(entry);
    rows->addWidget(pane, 1);
    rows->addWidget(sizes);
    // On a small screen the rest can be moved; what is done with a barcode stays in sight.
    auto* const area = new QScrollArea(this);
    area->setWidget(inner);
    area->setWidgetResizable(true);
    area->setFrameShape(QFrame::NoFrame);
    area->setFocusPolicy(Qt::NoFocus);
    auto* const buttons = new QHBoxLayout;
    buttons->addStretch();
    for (QPushButton* const button : {copyButton, copyAsButton, exportButton}) {
        buttons->addWidget(button);
    }
    auto* const right = new QWidget(this);
    auto* const column = new QVBoxLayout(right);
    column->setContentsMargins({});
    column->setSpacing(kSpacing);
    column->addWidget(area, 1);
    column->addLayout(buttons);
    splitter = new QSplitter(this);
    splitter->addWidget(chooser);
    splitter->addWidget(right);
    splitter->setChildrenCollapsible(false);
    splitter->setStretchFactor(1, 1);
    splitter->setSizes({kChooserWidth, kRestWidth});
    auto* const page = new QHBoxLayout(this);
    page->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    page->addWidget(splitter);
    setTabOrder(entry, pane);
    setTabOrder(pane, sizes);
    setTabOrder(sizes, copyButton);
    setTabOrder(copyButton, copyAsButton);
    setTabOrder(copyAsButton, exportButton);
    setFocusProxy(entry);
}

void BarcodePage::Connect() {
    constexpr int kQuietTime = 1000;
    storing.setSingleShot(true);
    storing.setInterval(kQuietTime);
    connect(&storing, &QTimer::timeout, this, [this] { Store(); });
    chooser->typeChosen = [this] { ChangeType(); };
    entry->changed = [this] { Refresh(); };
    sizes->changed = [this] { Refresh(); };
    output->chosenAgain = [this](const BarcodeWish& wish) { Choose(wish); };
    output->recentChanged = [this] { chooser->SetRecent(output->Recent().Types()); };
    connect(copyButton, &QPushButton::clicked, output->CopyText(), &QAction::trigger);
    connect(exportButton, &QPushButton::clicked, output->Export(), &QAction::trigger);
    connect(&entry->Data(), &QLineEdit::returnPressed, output->CopyText(), &QAction::trigger);
}

void BarcodePage::Restore() {
    const QString name = settings.value(QLatin1String(kTypeKey), kFirstType).toString();
    const BarcodeType* const type = FindTypeByPrefix(name.toStdString());
    chooser->Choose(type != nullptr ? type : FindTypeByPrefix(kFirstType));
    chooser->SetRecent(output->Recent().Types());
    entry->Data().SetData(settings.value(QLatin1String(kDataKey), kFirstData).toString());
    splitter->restoreState(settings.value(QLatin1String(kSplitKey)).toByteArray());
}

void BarcodePage::Store() {
    storing.stop();
    const std::string_view type = chooser->Chosen().type->name;
    Keep(settings, QLatin1String(kTypeKey),
         QString::fromLatin1(type.data(), static_cast<qsizetype>(type.size())));
    Keep(settings, QLatin1String(kDataKey), entry->Data().text());
    Keep(settings, QLatin1String(kSplitKey), splitter->saveState());
}

void BarcodePage::Speak(const QString& locale) {
    language = locale;
    texts = TextsOfTypes(service);
    chooser->Speak(texts, locale);
    entry->Speak(locale);
    pane->Speak(locale);
    sizes->Speak(locale);
    output->Speak(locale);
    copyButton->setText(Say(phrases::kPageCopy, locale));
    copyAsButton->setText(Say(phrases::kCopyAs, locale));
    exportButton->setText(Say(phrases::kPageExport, locale));
    findType->setText(Say(phrases::kMenuFindType, locale));
    goToData->setText(Say(phrases::kMenuTypeData, locale));
    zoomIn->setText(Say(phrases::kMenuZoomIn, locale));
    zoomOut->setText(Say(phrases::kMenuZoomOut, locale));
    fit->setText(Say(phrases::kMenuFit, locale));
    ChangeType();
}

QList<QAction*> BarcodePage::Actions(MenuPlace menu) const {
    switch (menu) {
        case MenuPlace::kFile: return output->FileActions();
        case MenuPlace::kEdit: return output->EditActions();
        case MenuPlace::kView: return {findType, goToData, zoomIn, zoomOut, fit};
    }
    return {};
}

void BarcodePage::ChangeType() {
    entry->ShowType(chooser->Chosen());
    sizes->ShowType(*chooser->Chosen().type);
    Refresh();
}

void BarcodePage::Choose(const BarcodeWish& wish) {
    chooser->Choose(FindTypeByPrefix(wish.type));
    entry->ShowType(chooser->Chosen());
    sizes->ShowType(*chooser->Chosen().type);
    entry->SetWish(wish);
}

void BarcodePage::Refresh() {
    storing.start();
    scanCheck.Forget();
    barcode.reset();
    const StatusWords words(chooser->Chosen(), language);
    const Language spoken = LanguageOf(language.toStdString());
    try {
        Draw(entry->Wish());
    } catch (const RequestFailure& failure) {
        Show(words.OfFailure(Sentence(failure, spoken)));
    } catch (const DrawingFailure& failure) {
        Show(words.OfFailure(Sentence(failure, spoken)));
    }
}

void BarcodePage::Draw(const BarcodeWish& wish) {
    const StatusWords words(chooser->Chosen(), language);
    if (wish.data.empty()) {
        Show(words.OfNothing());
        return;
    }
    const DrawingWish drawing = sizes->Wish();
    DrawnBarcode drawn = DrawBarcode(service, fonts, wish, drawing);
    if (!drawn.drawing) {
        Show(words.OfRefusal(drawn.outcome));
        return;
    }
    barcode = TakenBarcode{wish, drawing, std::move(drawn)};
    Show(words.OfDrawn(barcode->drawn));
    scanCheck.Check(*barcode->drawn.drawing, barcode->drawn.outcome.meaning);
}

void BarcodePage::Show(BarcodeStatus newStatus) {
    status = std::move(newStatus);
    entry->ShowMessage(status);
    pane->ShowDrawing(barcode ? &barcode->drawn : nullptr);
    pane->ShowBadge(status);
    sizes->ShowDrawing(barcode ? &*barcode->drawn.drawing : nullptr);
    output->Follow();
    for (QPushButton* const button : {copyButton, copyAsButton, exportButton}) {
        button->setEnabled(barcode.has_value());
    }
}

void BarcodePage::HearVerdict(const Verification* verification) {
    if (!barcode) return;
    StatusWords(chooser->Chosen(), language)
        .AddVerdict(status, barcode->drawn.outcome, barcode->wish, verification);
    pane->ShowBadge(status);
}

}  // namespace linewright
