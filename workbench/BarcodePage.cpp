#include "workbench/BarcodePage.h"

#include <QApplication>
#include <QClipboard>
#include <QFileDialog>
#include <QFontDatabase>
#include <QHBoxLayout>
#include <QLocale>
#include <QMessageBox>
#include <QSaveFile>
#include <QScrollArea>
#include <QSignalBlocker>
#include <algorithm>
#include <array>
#include <cmath>

#include "host/runtime/Paths.h"
#include "render/Export.h"
#include "requests/DrawnBarcode.h"
#include "scanners/Verification.h"
#include "text/FontText.h"
#include "types/BarcodeTypes.h"
#include "words/Words.h"
#include "workbench/Text.h"

namespace linewright {

namespace {

constexpr auto kTypeKey = "page/type";
constexpr auto kDataKey = "page/data";
constexpr auto kZoomKey = "page/zoom";
constexpr std::array kRatios{2.0, 2.5, 3.0};

// What is there when the window opens for the first time.
constexpr auto kFirstType = "_QVT_BARCODE_EAN13_";
constexpr auto kFirstData = "4006381333931";
constexpr int kFirstZoom = 3;

QString FromUtf8(const std::string& text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

std::string FileContent(const BarcodeDrawing& drawing, const QString& file) {
    return FileOf(drawing, FormatOf(file.toStdString()).value_or(FileFormat::kPdf), {});
}

}  // namespace

BarcodePage::BarcodePage(Service& plugIn, QSettings& userSettings, const std::string& fontFolder,
                         const QString& locale)
    : service(plugIn),
      settings(userSettings),
      fonts(host::PathFromUtf8(fontFolder)),
      language(locale),
      types(plugIn.Types()) {
    MakeFields();
    MakeActions();
    Arrange();
    Restore();
    Connect();
    ChangeType();
}

void BarcodePage::MakeFields() {
    typeBox = new QComboBox(this);
    typeBox->setObjectName(QStringLiteral("type"));
    typeBox->setMaxVisibleItems(static_cast<int>(types.size()));
    for (const TypeDescription& type : types) typeBox->addItem(FromUtf8(type.displayText));
    dataBox = new QLineEdit(this);
    dataBox->setObjectName(QStringLiteral("data"));
    dataBox->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    checkDigitBox = new QCheckBox(Words(Phrase::kPageCheckDigit), this);
    checkDigitBox->setObjectName(QStringLiteral("checkDigit"));
    ratioBox = new QComboBox(this);
    ratioBox->setObjectName(QStringLiteral("ratio"));
    for (const double ratio : kRatios)
        ratioBox->addItem(NumberText(ratio, 1, language) + QLatin1String(" : 1"));
    message = new QLabel(this);
    message->setObjectName(QStringLiteral("message"));
    message->setWordWrap(true);
    message->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    message->setMinimumHeight(2 * message->fontMetrics().lineSpacing());
}

void BarcodePage::MakeActions() {
    constexpr int kLargestZoom = 8;
    view = new BarcodeView(this);
    view->setObjectName(QStringLiteral("drawing"));
    fontLabel = new QLabel(this);
    fontLabel->setObjectName(QStringLiteral("font"));
    fontLabel->setTextInteractionFlags(Qt::TextSelectableByMouse);
    badge = new QLabel(this);
    badge->setObjectName(QStringLiteral("badge"));
    zoomSlider = new QSlider(Qt::Horizontal, this);
    zoomSlider->setObjectName(QStringLiteral("zoom"));
    zoomSlider->setRange(1, kLargestZoom);
    zoomSlider->setPageStep(1);
    copyButton = new QPushButton(Words(Phrase::kPageCopy), this);
    copyButton->setObjectName(QStringLiteral("copy"));
    exportButton = new QPushButton(Words(Phrase::kPageExport), this);
    exportButton->setObjectName(QStringLiteral("export"));
}

void BarcodePage::Arrange() {
    constexpr int kMargin = 16;
    constexpr int kSpacing = 12;
    const auto labelFor = [this](Phrase phrase, QWidget* named) {
        auto* const label = new QLabel(Words(phrase), this);
        label->setBuddy(named);
        named->setAccessibleName(SpokenText(label->text()));
        return label;
    };
    auto* const grid = new QGridLayout;
    grid->setHorizontalSpacing(kSpacing);
    grid->setColumnStretch(1, 1);
    grid->addWidget(labelFor(Phrase::kPageType, typeBox), 0, 0);
    grid->addWidget(typeBox, 0, 1);
    grid->addWidget(labelFor(Phrase::kPageRatio, ratioBox), 0, 2);
    grid->addWidget(ratioBox, 0, 3);
    grid->addWidget(labelFor(Phrase::kPageData, dataBox), 1, 0);
    grid->addWidget(dataBox, 1, 1);
    grid->addWidget(checkDigitBox, 1, 2, 1, 2);
    grid->addWidget(message, 2, 1, 1, 3);

    auto* const area = new QScrollArea(this);
    area->setObjectName(QStringLiteral("area"));
    area->setWidget(view);
    area->setWidgetResizable(true);
    area->setFocusPolicy(Qt::StrongFocus);
    area->setAccessibleName(SpokenText(Words(Phrase::kPageDrawing)));

    auto* const state = new QHBoxLayout;
    state->setSpacing(kSpacing);
    state->addWidget(badge);
    state->addWidget(fontLabel);
    state->addStretch();
    state->addWidget(labelFor(Phrase::kPageZoom, zoomSlider));
    state->addWidget(zoomSlider);
    auto* const buttons = new QHBoxLayout;
    buttons->addStretch();
    for (QPushButton* const button : {copyButton, exportButton})
        button->setMinimumWidth(button->sizeHint().width() + 2 * kSpacing);
    buttons->addWidget(copyButton);
    buttons->addWidget(exportButton);

    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    column->setSpacing(kSpacing);
    column->addLayout(grid);
    column->addWidget(area, 1);
    column->addLayout(state);
    column->addLayout(buttons);

    QWidget* last = typeBox;
    for (QWidget* const next : std::initializer_list<QWidget*>{
             dataBox, ratioBox, checkDigitBox, area, zoomSlider, copyButton, exportButton}) {
        setTabOrder(last, next);
        last = next;
    }
    setFocusProxy(dataBox);
}

void BarcodePage::Connect() {
    connect(typeBox, &QComboBox::currentIndexChanged, this, [this] { ChangeType(); });
    connect(dataBox, &QLineEdit::textChanged, this, [this] { Refresh(); });
    connect(checkDigitBox, &QCheckBox::toggled, this, [this] { Refresh(); });
    connect(ratioBox, &QComboBox::currentIndexChanged, this, [this] { Refresh(); });
    connect(zoomSlider, &QSlider::valueChanged, this, [this] { Refresh(); });
    connect(copyButton, &QPushButton::clicked, this,
            [this] { QApplication::clipboard()->setText(fontText); });
    connect(exportButton, &QPushButton::clicked, this, [this] { AskForExport(); });
}

void BarcodePage::Restore() {
    const std::string name = settings.value(kTypeKey, kFirstType).toString().toStdString();
    const auto found = std::find_if(types.begin(), types.end(),
                                    [&](const auto& type) { return type.typeName == name; });
    if (found != types.end()) typeBox->setCurrentIndex(static_cast<int>(found - types.begin()));
    dataBox->setText(settings.value(kDataKey, kFirstData).toString());
    zoomSlider->setValue(settings.value(kZoomKey, kFirstZoom).toInt());
}

void BarcodePage::ChangeType() {
    // The flags: the check digit can be chosen, it is on at first, the ratio can be chosen.
    const std::array<uint16, 3> flags =
        types[static_cast<std::size_t>(typeBox->currentIndex())].optionFlags.value_or(
            std::array<uint16, 3>{});
    {
        const QSignalBlocker checkDigit(checkDigitBox);
        const QSignalBlocker ratio(ratioBox);
        checkDigitBox->setEnabled(flags[0] != 0);
        checkDigitBox->setChecked(flags[1] != 0);
        ratioBox->setEnabled(flags[2] != 0);
        ratioBox->setCurrentIndex(0);
    }
    Refresh();
}

void BarcodePage::Refresh() {
    const TypeDescription& type = types[static_cast<std::size_t>(typeBox->currentIndex())];
    const BarcodeWish wish{
        .type = type.typeName,
        .data = dataBox->text().toStdString(),
        .isUtf8 = true,
        .checkCharacter = static_cast<uint8>(checkDigitBox->isChecked() ? 1 : 0),
        .ratio = kRatios[static_cast<std::size_t>(ratioBox->currentIndex())],
    };
    settings.setValue(kTypeKey, FromUtf8(type.typeName));
    settings.setValue(kDataKey, dataBox->text());
    settings.setValue(kZoomKey, zoomSlider->value());
    const Language spoken = LanguageOf(language.toStdString());
    try {
        DrawnBarcode drawn = DrawBarcode(service, fonts, wish, {});
        const bool isMade = drawn.outcome.IsMade();
        ShowMessage(FromUtf8(isMade ? JoinedWarnings(drawn.outcome, spoken)
                                    : WhyRefused(drawn.outcome, spoken)),
                    !isMade);
        Show(drawn);
    } catch (const RequestFailure& failure) {
        ShowFailure(Sentence(failure, spoken));
    } catch (const DrawingFailure& failure) {
        ShowFailure(Sentence(failure, spoken));
    }
}

void BarcodePage::ShowFailure(const std::string& sentence) {
    ShowMessage(FromUtf8(sentence), true);
    DrawnBarcode nothing{};
    Show(nothing);
}

void BarcodePage::Show(DrawnBarcode& drawn) {
    const BarcodeOutcome& outcome = drawn.outcome;
    ShowBadge(drawn);
    fontText = FromUtf8(FontText(outcome.bytes));
    copyButton->setEnabled(!fontText.isEmpty());
    exportButton->setEnabled(drawn.drawing.has_value());
    fontLabel->clear();
    double pixelsPerModule = 1;
    if (drawn.drawing) {
        const BarcodeType& type = *outcome.type;
        pixelsPerModule = static_cast<double>(zoomSlider->value()) / type.dimensions.modulesPerX;
        if (type.face != nullptr)
            fontLabel->setText(QString::fromUtf8(type.face->family.data(),
                                                 static_cast<qsizetype>(type.face->family.size())) +
                               QLatin1String(", ") +
                               NumberText(drawn.drawing->FontSize(), 2, language) +
                               QLatin1String(" pt"));
    }
    view->SetDrawing(std::move(drawn.drawing), pixelsPerModule);
}

void BarcodePage::ShowMessage(const QString& text, bool isRefusal) {
    message->setText(text);
    QPalette colours = palette();
    constexpr QColor kRefusal(0xB0, 0x1E, 0x1E);
    constexpr QColor kWarning(0x7A, 0x4F, 0x00);
    colours.setColor(QPalette::WindowText, isRefusal ? kRefusal : kWarning);
    message->setPalette(colours);
}

void BarcodePage::ShowBadge(const DrawnBarcode& drawn) {
    badge->setVisible(drawn.drawing.has_value());
    if (!drawn.drawing) return;
    const Verification verification = Verify(*drawn.drawing, drawn.outcome.meaning);
    const char* colour = "#666666";
    switch (verification.verdict) {
        case Verdict::kScans:
            badge->setText(Words(Phrase::kScans));
            colour = "#1B7F3B";
            break;
        case Verdict::kScansAs:
            badge->setText(Words(Phrase::kScansAs).arg(FromUtf8(verification.WhatWasRead())));
            colour = "#9A5B00";
            break;
        case Verdict::kDoesNotScan:
            badge->setText(Words(Phrase::kDoesNotScan));
            colour = "#B01E1E";
            break;
        case Verdict::kNoScanner: badge->setText(Words(Phrase::kNoScanner)); break;
    }
    badge->setStyleSheet(
        QStringLiteral("background: %1; color: white; padding: 3px 8px; border-radius: 3px;")
            .arg(QLatin1String(colour)));
}

bool BarcodePage::Export(const QString& name) const {
    if (!view->Drawing()) return false;
    std::string content;
    try {
        content = FileContent(*view->Drawing(), name);
    } catch (const DrawingFailure&) {
        return false;
    }
    QSaveFile file(name);
    return file.open(QIODevice::WriteOnly) &&
           file.write(content.data(), static_cast<qint64>(content.size())) ==
               static_cast<qint64>(content.size()) &&
           file.commit();
}

void BarcodePage::AskForExport() {
    QFileDialog dialog(this);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setNameFilters({QStringLiteral("PDF (*.pdf)"), QStringLiteral("SVG (*.svg)"),
                           QStringLiteral("PNG (*.png)")});
    dialog.setDefaultSuffix(QStringLiteral("pdf"));
    connect(&dialog, &QFileDialog::filterSelected, &dialog, [&dialog](const QString& filter) {
        dialog.setDefaultSuffix(filter.left(3).toLower());
    });
    if (dialog.exec() != QDialog::Accepted) return;
    const QString file = dialog.selectedFiles().constFirst();
    if (!Export(file))
        QMessageBox::critical(this, window()->windowTitle(), Words(Phrase::kCannotWrite).arg(file));
}

}  // namespace linewright
