#include "workbench/DrawingPane.h"

#include <QHBoxLayout>
#include <QSignalBlocker>
#include <QVBoxLayout>
#include <cmath>

#include "workbench/Keep.h"
#include "workbench/Language.h"
#include "workbench/PagePhrases.h"
#include "workbench/Text.h"

namespace linewright {

namespace {

constexpr auto kZoomKey = "page/zoom";
constexpr auto kFittedKey = "page/isFitted";
constexpr int kFirstZoom = 3;

}  // namespace

DrawingPane::DrawingPane(QSettings& userSettings, QWidget* parent)
    : QWidget(parent), settings(userSettings) {
    area = new DrawingArea(this);
    area->setObjectName(QStringLiteral("area"));
    badge = new Badge(this);
    badge->setObjectName(QStringLiteral("badge"));
    fontLabel = new QLabel(this);
    fontLabel->setObjectName(QStringLiteral("font"));
    fontLabel->setTextInteractionFlags(Qt::TextSelectableByMouse);
    zoomLabel = new QLabel(this);
    zoomBox = new QSpinBox(this);
    zoomBox->setObjectName(QStringLiteral("zoom"));
    zoomBox->setRange(1, DrawingArea::kLargestZoom);
    zoomBox->setSuffix(QStringLiteral(" px"));
    zoomLabel->setBuddy(zoomBox);
    percentLabel = new QLabel(this);
    percentLabel->setObjectName(QStringLiteral("percent"));
    fitButton = new QPushButton(this);
    fitButton->setObjectName(QStringLiteral("fit"));
    fitButton->setCheckable(true);
    fitButton->setAutoDefault(false);
    Arrange();
    area->zoomChanged = [this] { ShowZoom(); };
    connect(zoomBox, &QSpinBox::valueChanged, this, [this](int zoom) { area->SetZoom(zoom); });
    connect(fitButton, &QPushButton::clicked, this, [this](bool on) { area->SetFitted(on); });
    // Both are stored when either changes.
    const int kept = settings.value(QLatin1String(kZoomKey), kFirstZoom).toInt();
    const bool isFitted = settings.value(QLatin1String(kFittedKey), true).toBool();
    area->SetZoom(kept);
    area->SetFitted(isFitted);
}

void DrawingPane::Arrange() {
    constexpr int kSpacing = 8;
    constexpr int kLeastHeight = 100;
    area->setMinimumHeight(kLeastHeight);
    auto* const state = new QHBoxLayout;
    state->setSpacing(kSpacing);
    state->addWidget(badge, 1);
    auto* const scale = new QHBoxLayout;
    scale->setSpacing(kSpacing);
    scale->addWidget(fontLabel);
    scale->addStretch();
    scale->addWidget(zoomLabel);
    scale->addWidget(zoomBox);
    scale->addWidget(fitButton);
    scale->addWidget(percentLabel);
    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins({});
    column->setSpacing(kSpacing);
    column->addWidget(area, 1);
    column->addLayout(state);
    column->addLayout(scale);
    setTabOrder(area, zoomBox);
    setTabOrder(zoomBox, fitButton);
}

void DrawingPane::Speak(const QString& locale) {
    language = locale;
    area->setAccessibleName(Say(phrases::kPageDrawing, locale));
    zoomLabel->setText(Say(phrases::kPageZoom, locale));
    zoomBox->setAccessibleName(SpokenText(zoomLabel->text()));
    fitButton->setText(Say(phrases::kFit, locale));
    // Its longest text has its room, so that nothing moves when it changes.
    const QString longest = Say(phrases::kPercentOfPaper, locale).arg(QStringLiteral("0000"));
    percentLabel->setFixedWidth(percentLabel->fontMetrics().horizontalAdvance(longest));
    ShowZoom();
}

void DrawingPane::ShowDrawing(const DrawnBarcode* drawn) {
    fontLabel->clear();
    if (drawn == nullptr || !drawn->drawing) {
        area->SetDrawing(std::nullopt, 1);
        ShowZoom();
        return;
    }
    const BarcodeType& type = *drawn->outcome.type;
    if (type.face != nullptr) {
        const std::string_view family = type.face->family;
        fontLabel->setText(QString::fromUtf8(family.data(), static_cast<qsizetype>(family.size())) +
                           QLatin1String(", ") +
                           NumberText(drawn->drawing->FontSize(), 2, language) +
                           QLatin1String(" pt"));
    }
    area->SetDrawing(drawn->drawing, type.dimensions.modulesPerX);
    ShowZoom();
}

void DrawingPane::ShowBadge(const BarcodeStatus& status) {
    badge->Show(status.tone, status.badge,
                Say(phrases::kScannerVerdict, language).arg(status.badge));
    area->setAccessibleDescription(badge->accessibleName());
}

void DrawingPane::ShowZoom() {
    const QSignalBlocker silence(zoomBox);
    zoomBox->setValue(area->Zoom());
    fitButton->setChecked(area->IsFitted());
    percentLabel->clear();
    if (area->Percent() > 0) {
        percentLabel->setText(Say(phrases::kPercentOfPaper, language)
                                  .arg(NumberText(std::round(area->Percent()), 0, language)));
    }
    Keep(settings, QLatin1String(kZoomKey), area->Zoom());
    Keep(settings, QLatin1String(kFittedKey), area->IsFitted());
}

}  // namespace linewright
