#include "workbench/SizeStrip.h"

#include <QGridLayout>
#include <QLineEdit>
#include <QSignalBlocker>
#include <QVBoxLayout>
#include <array>
#include <cmath>

#include "presets/Preset.h"
#include "requests/DrawnBarcode.h"
#include "requests/WrittenLength.h"
#include "types/BarcodeTypes.h"
#include "workbench/Keep.h"
#include "workbench/Language.h"
#include "workbench/PagePhrases.h"
#include "workbench/Text.h"

namespace linewright {

namespace {

constexpr auto kSizesKey = "page/sizes";

/** What printers have, in dots an inch. */
constexpr std::array kResolutions{203, 300, 600, 1200, 2400, 2540};
constexpr double kLeastResolution = 72;
constexpr double kMostResolution = 10000;

/** The length of a field as the command reads it from its option, to the last bit. */
std::optional<Length> LengthOf(const QDoubleSpinBox& box) {
    const QString written = QString::number(box.value(), 'f', box.decimals()) + QLatin1String("mm");
    return FindLength(written.toStdString(), true);
}

}  // namespace

SizeStrip::SizeStrip(QSettings& userSettings, QWidget* parent)
    : QWidget(parent), settings(userSettings), type(&kBarcodeTypes.front()) {
    MakeField(xDimension, "xDimension", 0.05, 10, 4, 0.01);
    MakeField(magnification, "magnification", 1, 3000, 1, 5);
    MakeField(height, "height", 0.1, 500, 2, 1);
    MakeField(quietZone, "quietZone", 0, 100, 2, 0.5);
    MakeField(reduction, "reduction", 0, 25, 1, 1);
    MakeChoices();
    Arrange();
    Restore();
    Connect();
}

void SizeStrip::MakeChoices() {
    resolutionLabel = new QLabel(this);
    resolutionBox = new QComboBox(this);
    resolutionBox->setObjectName(QStringLiteral("resolution"));
    resolutionBox->setEditable(true);
    resolutionBox->setInsertPolicy(QComboBox::NoInsert);
    resolutionBox->setMinimumContentsLength(5);
    resolutionBox->addItem(QString());
    for (const int dots : kResolutions) resolutionBox->addItem(QString::number(dots));
    resolutionLabel->setBuddy(resolutionBox);
    const auto makeBox = [this](const char* name) {
        auto* const box = new QCheckBox(this);
        box->setObjectName(QLatin1String(name));
        return box;
    };
    textBox = makeBox("text");
    bearerBox = makeBox("bearer");
    marksBox = makeBox("marks");
    usualButton = new QPushButton(this);
    usualButton->setObjectName(QStringLiteral("usual"));
    usualButton->setAutoDefault(false);
    sizeLabel = new QLabel(this);
    sizeLabel->setObjectName(QStringLiteral("size"));
    sizeLabel->setTextInteractionFlags(Qt::TextSelectableByMouse);
    sizeLabel->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
}

void SizeStrip::Connect() {
    const auto onNumber = [this](const Field& field, auto take) {
        connect(field.box, &QDoubleSpinBox::valueChanged, this, [this, take] {
            take();
            Change();
        });
    };
    onNumber(xDimension, [this] {
        if (const auto length = LengthOf(*xDimension.box)) wish.xDimension = length->number;
        wish.magnification.reset();
    });
    onNumber(magnification, [this] {
        wish.xDimension.reset();
        wish.magnification = magnification.box->value();
    });
    onNumber(height, [this] { wish.height = LengthOf(*height.box); });
    onNumber(quietZone, [this] { wish.quietZone = LengthOf(*quietZone.box); });
    onNumber(reduction, [this] {
        const QString written = QString::number(reduction.box->value(), 'f', 1) + '%';
        wish.barWidthReduction = FindReduction(written.toStdString());
    });
    connect(resolutionBox, &QComboBox::currentTextChanged, this, [this] {
        wish.dotsPerInch = Resolution();
        wish.isFitted = wish.dotsPerInch.has_value();
        Change();
    });
    const auto onTick = [this](QCheckBox* box, auto take) {
        connect(box, &QCheckBox::clicked, this, [this, take](bool on) {
            take(on);
            Change();
        });
    };
    onTick(textBox, [this](bool on) { wish.isTextWanted = on; });
    onTick(bearerBox, [this](bool on) { wish.hasBearerBars = on; });
    onTick(marksBox, [this](bool on) { wish.hasMarginMarks = on; });
    connect(usualButton, &QPushButton::clicked, this, [this] { SetWish({}); });
}

void SizeStrip::MakeField(Field& field, const char* name, double least, double most, int decimals,
                          double step) {
    field.label = new QLabel(this);
    field.box = new QDoubleSpinBox(this);
    field.box->setObjectName(QLatin1String(name));
    field.box->setRange(least, most);
    field.box->setDecimals(decimals);
    field.box->setSingleStep(step);
    field.box->setKeyboardTracking(false);
    field.label->setBuddy(field.box);
}

void SizeStrip::Arrange() {
    constexpr int kSpacing = 6;
    auto* const grid = new QGridLayout;
    grid->setHorizontalSpacing(kSpacing);
    grid->setVerticalSpacing(kSpacing / 2);
    int column = 0;
    for (const Field* const field :
         {&xDimension, &magnification, &height, &quietZone, &reduction}) {
        grid->addWidget(field->label, 0, column);
        grid->addWidget(field->box, 1, column);
        grid->setColumnStretch(column++, 1);
    }
    grid->addWidget(resolutionLabel, 0, column);
    grid->addWidget(resolutionBox, 1, column);
    grid->setColumnStretch(column, 1);
    buttons = new QHBoxLayout;
    buttons->setSpacing(kSpacing);
    for (QCheckBox* const box : {textBox, bearerBox, marksBox}) buttons->addWidget(box);
    buttons->addStretch();
    buttons->addWidget(usualButton);
    auto* const rows = new QVBoxLayout(this);
    rows->setContentsMargins({});
    rows->setSpacing(kSpacing);
    rows->addLayout(grid);
    rows->addLayout(buttons);
    rows->addWidget(sizeLabel);
    QWidget* last = nullptr;
    for (QWidget* const next : std::initializer_list<QWidget*>{
             xDimension.box, magnification.box, height.box, quietZone.box, reduction.box,
             resolutionBox, textBox, bearerBox, marksBox, usualButton}) {
        if (last != nullptr) setTabOrder(last, next);
        last = next;
    }
}

void SizeStrip::Speak(const QString& locale) {
    language = locale;
    const auto say = [&](Field& field, const Phrase& phrase, const QString& unit) {
        field.label->setText(Say(phrase, locale));
        field.box->setAccessibleName(SpokenText(field.label->text()));
        field.box->setLocale(QtLocale(locale));
        field.box->setSuffix(unit);
    };
    say(xDimension, phrases::kXDimension, QStringLiteral(" mm"));
    say(magnification, phrases::kMagnification, QStringLiteral(" %"));
    say(height, phrases::kHeight, QStringLiteral(" mm"));
    say(quietZone, phrases::kQuietZone, QStringLiteral(" mm"));
    say(reduction, phrases::kReduction, QStringLiteral(" %"));
    resolutionLabel->setText(Say(phrases::kResolution, locale));
    resolutionBox->setAccessibleName(SpokenText(resolutionLabel->text()));
    resolutionBox->lineEdit()->setPlaceholderText(Say(phrases::kNoResolution, locale));
    textBox->setText(Say(phrases::kTextBelow, locale));
    bearerBox->setText(Say(phrases::kBearerBars, locale));
    marksBox->setText(Say(phrases::kMarginMarks, locale));
    usualButton->setText(Say(phrases::kUsualSizes, locale));
    sizeLabel->setAccessibleName(Say(phrases::kDrawnSize, locale));
}

void SizeStrip::ShowType(const BarcodeType& shown) {
    type = &shown;
    const bool hasBars = type->symbology != Symbology::kText;
    const auto offer = [](const Field& field, bool isOffered) {
        field.label->setEnabled(isOffered);
        field.box->setEnabled(isOffered);
    };
    offer(height, hasBars && !type->HasFixedHeight());
    offer(reduction, hasBars);
    // Digits that the font prints, or that are all there is, cannot be left out.
    textBox->setEnabled(hasBars && !type->face->printsText);
    bearerBox->setEnabled(type->MayHaveBearerBars());
    marksBox->setEnabled(type->MayHaveMarginMarks());
    ShowWish();
}

void SizeStrip::ShowWish() {
    textBox->setChecked(!textBox->isEnabled() || wish.isTextWanted.value_or(true));
    bearerBox->setChecked(bearerBox->isEnabled() && wish.hasBearerBars);
    marksBox->setChecked(marksBox->isEnabled() && wish.hasMarginMarks);
    const QString dots = wish.dotsPerInch ? QString::number(*wish.dotsPerInch) : QString();
    if (Resolution() != wish.dotsPerInch) {
        const QSignalBlocker silence(resolutionBox);
        resolutionBox->setEditText(dots);
    }
    const double x = XDimension();
    ShowNumber(xDimension, x / kMillimetre);
    ShowNumber(magnification, 100 * x / type->dimensions.xDimension);
    if (wish.height) ShowNumber(height, wish.height->Points(x) / kMillimetre);
    if (wish.quietZone) ShowNumber(quietZone, wish.quietZone->Points(x) / kMillimetre);
    const double narrower = wish.barWidthReduction ? wish.barWidthReduction->Points(x) : 0;
    ShowNumber(reduction, 100 * narrower / x);
}

void SizeStrip::ShowDrawing(const BarcodeDrawing* drawing) {
    usualButton->setEnabled(!PresetText(wish).empty());
    ShowWish();
    sizeLabel->clear();
    if (drawing == nullptr) return;
    if (!wish.height) ShowNumber(height, drawing->BarHeight() / kMillimetre);
    if (!wish.quietZone) {
        ShowNumber(quietZone, type->dimensions.quietLeft * drawing->Module() / kMillimetre);
    }
    ShowSizes(*drawing);
}

void SizeStrip::ShowSizes(const BarcodeDrawing& drawing) {
    const auto number = [this](double value, int decimals) {
        return NumberText(value, decimals, language);
    };
    const double x = drawing.Module() * type->dimensions.modulesPerX;
    const double width = drawing.Width() * drawing.Module();
    const double tall = drawing.Height() * drawing.Module();
    QString text =
        Say(phrases::kDrawnSizes, language)
            .arg(number(width / kMillimetre, 2), number(tall / kMillimetre, 2), number(width, 1),
                 number(tall, 1), number(x / kMillimetre, 3), number(x, 2));
    if (drawing.DotsPerInch()) {
        const double dots = x / kInch * *drawing.DotsPerInch();
        const bool isWhole = std::abs(dots - std::round(dots)) < 0.005;
        text += Say(phrases::kDotsPerModule, language).arg(number(dots, isWhole ? 0 : 2));
    }
    sizeLabel->setText(text);
    sizeLabel->setToolTip(text);
}

DrawingWish SizeStrip::Wish() const {
    DrawingWish offered = wish;
    if (!height.box->isEnabled()) offered.height.reset();
    if (!reduction.box->isEnabled()) offered.barWidthReduction.reset();
    if (!textBox->isEnabled()) offered.isTextWanted.reset();
    offered.hasBearerBars = wish.hasBearerBars && bearerBox->isEnabled();
    offered.hasMarginMarks = wish.hasMarginMarks && marksBox->isEnabled();
    return offered;
}

void SizeStrip::SetWish(const DrawingWish& wanted) {
    wish = wanted;
    ShowWish();
    Change();
}

void SizeStrip::AddWidget(QWidget* widget) {
    buttons->insertWidget(buttons->count() - 1, widget);
}

void SizeStrip::Restore() {
    try {
        const std::string kept = settings.value(QLatin1String(kSizesKey)).toString().toStdString();
        wish = PresetOf(kept, settings.fileName().toStdString());
    } catch (const PresetFailure&) {
        // The usual sizes, where somebody else has written there.
        wish = {};
    }
}

void SizeStrip::ShowNumber(const Field& field, double number) {
    const QSignalBlocker silence(field.box);
    field.box->setValue(number);
}

void SizeStrip::Change() {
    Keep(settings, QLatin1String(kSizesKey), QString::fromStdString(PresetText(wish)));
    if (changed) changed();
}

std::optional<double> SizeStrip::Resolution() const {
    bool isNumber = false;
    const double dots = resolutionBox->currentText().toDouble(&isNumber);
    if (!isNumber || dots < kLeastResolution || dots > kMostResolution) return std::nullopt;
    return dots;
}

double SizeStrip::XDimension() const {
    return XDimensionOf(wish, *type).value_or(type->dimensions.xDimension);
}

}  // namespace linewright
