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

#include "cli/DrawnBarcode.h"
#include "cli/Failure.h"
#include "render/Export.h"
#include "text/FontText.h"
#include "types/BarcodeTypes.h"
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

/** The whole number of pixels a module that is nearest to a usual resolution. */
int PixelsForPng(const BarcodeDrawing& drawing) {
    constexpr double kUsualResolution = 300;
    const int step = drawing.HasHalfModules() ? 2 : 1;
    const double steps = PixelsPerModule(drawing, kUsualResolution) / step;
    return step * std::max(1, static_cast<int>(std::lround(steps)));
}

std::string FileContent(const BarcodeDrawing& drawing, const QString& file) {
    if (file.endsWith(QLatin1String(".svg"), Qt::CaseInsensitive)) return SvgOf(drawing);
    if (file.endsWith(QLatin1String(".png"), Qt::CaseInsensitive))
        return PngOf(drawing, PixelsForPng(drawing));
    return PdfOf(drawing);
}

}  // namespace

BarcodePage::BarcodePage(Service& service, QSettings& settings, std::string fonts,
                         const QString& locale)
    : fService(service),
      fSettings(settings),
      fFonts(std::move(fonts)),
      fLocale(locale),
      fTypes(service.Types()) {
    MakeFields();
    MakeActions();
    Arrange();
    Restore();
    Connect();
    ChangeType();
}

void BarcodePage::MakeFields() {
    fType = new QComboBox(this);
    fType->setObjectName(QStringLiteral("type"));
    fType->setMaxVisibleItems(static_cast<int>(fTypes.size()));
    for (const TypeDescription& type : fTypes) fType->addItem(FromUtf8(type.displayText));
    fData = new QLineEdit(this);
    fData->setObjectName(QStringLiteral("data"));
    fData->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    fCheckDigit = new QCheckBox(Words(Phrase::kPageCheckDigit), this);
    fCheckDigit->setObjectName(QStringLiteral("checkDigit"));
    fRatio = new QComboBox(this);
    fRatio->setObjectName(QStringLiteral("ratio"));
    for (const double ratio : kRatios)
        fRatio->addItem(NumberText(ratio, 1, fLocale) + QLatin1String(" : 1"));
    fMessage = new QLabel(this);
    fMessage->setObjectName(QStringLiteral("message"));
    fMessage->setWordWrap(true);
    fMessage->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    fMessage->setMinimumHeight(2 * fMessage->fontMetrics().lineSpacing());
}

void BarcodePage::MakeActions() {
    constexpr int kLargestZoom = 8;
    fView = new BarcodeView(this);
    fView->setObjectName(QStringLiteral("drawing"));
    fFont = new QLabel(this);
    fFont->setObjectName(QStringLiteral("font"));
    fFont->setTextInteractionFlags(Qt::TextSelectableByMouse);
    fBadge = new QLabel(this);
    fBadge->setObjectName(QStringLiteral("badge"));
    fZoom = new QSlider(Qt::Horizontal, this);
    fZoom->setObjectName(QStringLiteral("zoom"));
    fZoom->setRange(1, kLargestZoom);
    fZoom->setPageStep(1);
    fCopy = new QPushButton(Words(Phrase::kPageCopy), this);
    fCopy->setObjectName(QStringLiteral("copy"));
    fExport = new QPushButton(Words(Phrase::kPageExport), this);
    fExport->setObjectName(QStringLiteral("export"));
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
    grid->addWidget(labelFor(Phrase::kPageType, fType), 0, 0);
    grid->addWidget(fType, 0, 1);
    grid->addWidget(labelFor(Phrase::kPageRatio, fRatio), 0, 2);
    grid->addWidget(fRatio, 0, 3);
    grid->addWidget(labelFor(Phrase::kPageData, fData), 1, 0);
    grid->addWidget(fData, 1, 1);
    grid->addWidget(fCheckDigit, 1, 2, 1, 2);
    grid->addWidget(fMessage, 2, 1, 1, 3);

    auto* const area = new QScrollArea(this);
    area->setObjectName(QStringLiteral("area"));
    area->setWidget(fView);
    area->setWidgetResizable(true);
    area->setFocusPolicy(Qt::StrongFocus);
    area->setAccessibleName(SpokenText(Words(Phrase::kPageDrawing)));

    auto* const state = new QHBoxLayout;
    state->setSpacing(kSpacing);
    state->addWidget(fBadge);
    state->addWidget(fFont);
    state->addStretch();
    state->addWidget(labelFor(Phrase::kPageZoom, fZoom));
    state->addWidget(fZoom);
    auto* const buttons = new QHBoxLayout;
    buttons->addStretch();
    for (QPushButton* const button : {fCopy, fExport})
        button->setMinimumWidth(button->sizeHint().width() + 2 * kSpacing);
    buttons->addWidget(fCopy);
    buttons->addWidget(fExport);

    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    column->setSpacing(kSpacing);
    column->addLayout(grid);
    column->addWidget(area, 1);
    column->addLayout(state);
    column->addLayout(buttons);

    QWidget* last = fType;
    for (QWidget* const next :
         std::initializer_list<QWidget*>{fData, fRatio, fCheckDigit, area, fZoom, fCopy, fExport}) {
        setTabOrder(last, next);
        last = next;
    }
    setFocusProxy(fData);
}

void BarcodePage::Connect() {
    connect(fType, &QComboBox::currentIndexChanged, this, [this] { ChangeType(); });
    connect(fData, &QLineEdit::textChanged, this, [this] { Refresh(); });
    connect(fCheckDigit, &QCheckBox::toggled, this, [this] { Refresh(); });
    connect(fRatio, &QComboBox::currentIndexChanged, this, [this] { Refresh(); });
    connect(fZoom, &QSlider::valueChanged, this, [this] { Refresh(); });
    connect(fCopy, &QPushButton::clicked, this,
            [this] { QApplication::clipboard()->setText(fFontText); });
    connect(fExport, &QPushButton::clicked, this, [this] { AskForExport(); });
}

void BarcodePage::Restore() {
    const std::string name = fSettings.value(kTypeKey, kFirstType).toString().toStdString();
    const auto found = std::find_if(fTypes.begin(), fTypes.end(),
                                    [&](const auto& type) { return type.typeName == name; });
    if (found != fTypes.end()) fType->setCurrentIndex(static_cast<int>(found - fTypes.begin()));
    fData->setText(fSettings.value(kDataKey, kFirstData).toString());
    fZoom->setValue(fSettings.value(kZoomKey, kFirstZoom).toInt());
}

void BarcodePage::ChangeType() {
    // The flags: the check digit can be chosen, it is on at first, the ratio can be chosen.
    const std::array<uint16, 3> flags =
        fTypes[static_cast<std::size_t>(fType->currentIndex())].optionFlags.value_or(
            std::array<uint16, 3>{});
    {
        const QSignalBlocker checkDigit(fCheckDigit);
        const QSignalBlocker ratio(fRatio);
        fCheckDigit->setEnabled(flags[0] != 0);
        fCheckDigit->setChecked(flags[1] != 0);
        fRatio->setEnabled(flags[2] != 0);
        fRatio->setCurrentIndex(0);
    }
    Refresh();
}

void BarcodePage::Refresh() {
    const TypeDescription& type = fTypes[static_cast<std::size_t>(fType->currentIndex())];
    const EncodeRequest request{
        .typeName = type.typeName,
        .data = fData->text().toStdString(),
        .isUtf8 = true,
        .checkCharacter = static_cast<uint8>(fCheckDigit->isChecked() ? 1 : 0),
        .ratio = kRatios[static_cast<std::size_t>(fRatio->currentIndex())],
    };
    fSettings.setValue(kTypeKey, FromUtf8(type.typeName));
    fSettings.setValue(kDataKey, fData->text());
    fSettings.setValue(kZoomKey, fZoom->value());
    DrawingWish wish;
    wish.fonts = fFonts;
    DrawnBarcode drawn;
    try {
        drawn = DrawBarcode(fService, request, false, wish);
    } catch (const Failure& failure) {
        drawn.outcome.isMade = false;
        drawn.outcome.message = failure.what();
    }
    Show(drawn);
}

void BarcodePage::Show(DrawnBarcode& drawn) {
    const BarcodeOutcome& outcome = drawn.outcome;
    ShowMessage(FromUtf8(outcome.isMade ? Joined(outcome.warnings) : outcome.message),
                !outcome.isMade);
    ShowBadge(drawn);
    fFontText = outcome.isMade ? FromUtf8(FontText(outcome.bytes)) : QString();
    fCopy->setEnabled(outcome.isMade);
    fExport->setEnabled(drawn.drawing.has_value());
    fFont->clear();
    double pixelsPerModule = 1;
    if (drawn.drawing) {
        const BarcodeType& type = *FindTypeByPrefix(outcome.typeName);
        pixelsPerModule = static_cast<double>(fZoom->value()) / type.dimensions.modulesPerX;
        if (type.face != nullptr)
            fFont->setText(QString::fromUtf8(type.face->family.data(),
                                             static_cast<qsizetype>(type.face->family.size())) +
                           QLatin1String(", ") + NumberText(drawn.drawing->FontSize(), 2, fLocale) +
                           QLatin1String(" pt"));
    }
    fView->SetDrawing(std::move(drawn.drawing), pixelsPerModule);
}

void BarcodePage::ShowMessage(const QString& text, bool isRefusal) {
    fMessage->setText(text);
    QPalette colours = palette();
    constexpr QColor kRefusal(0xB0, 0x1E, 0x1E);
    constexpr QColor kWarning(0x7A, 0x4F, 0x00);
    colours.setColor(QPalette::WindowText, isRefusal ? kRefusal : kWarning);
    fMessage->setPalette(colours);
}

void BarcodePage::ShowBadge(const DrawnBarcode& drawn) {
    fBadge->setVisible(drawn.drawing.has_value());
    if (!drawn.drawing) return;
    const Verification verification = Verify(*drawn.drawing, drawn.meaning);
    const char* colour = "#666666";
    switch (verification.verdict) {
        case Verdict::kScans:
            fBadge->setText(Words(Phrase::kScans));
            colour = "#1B7F3B";
            break;
        case Verdict::kScansAs:
            fBadge->setText(Words(Phrase::kScansAs).arg(FromUtf8(WhatWasRead(verification))));
            colour = "#9A5B00";
            break;
        case Verdict::kDoesNotScan:
            fBadge->setText(Words(Phrase::kDoesNotScan));
            colour = "#B01E1E";
            break;
        case Verdict::kNoScanner: fBadge->setText(Words(Phrase::kNoScanner)); break;
    }
    fBadge->setStyleSheet(
        QStringLiteral("background: %1; color: white; padding: 3px 8px; border-radius: 3px;")
            .arg(QLatin1String(colour)));
}

bool BarcodePage::Export(const QString& name) const {
    if (!fView->Drawing()) return false;
    const std::string content = FileContent(*fView->Drawing(), name);
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
