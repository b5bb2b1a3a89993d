#include "workbench/SizeStrip.h"

#include <QHBoxLayout>
#include <QLineEdit>
#include <QSignalBlocker>
#include <QVBoxLayout>
#include <array>
#include <cmath>

#include "requests/WrittenLength.h"
#include "workbench/Keep.h"
#include "workbench/Language.h"
#include "workbench/PagePhrases.h"
#include "workbench/Text.h"

namespace linewright {

namespace {

constexpr auto kXDimensionKey = "sizes/xDimension";
constexpr auto kHeightKey = "sizes/height";
constexpr auto kQuietZoneKey = "sizes/quietZone";
constexpr auto kReductionKey = "sizes/reduction";
constexpr auto kResolutionKey = "sizes/resolution";
constexpr auto kTextKey = "sizes/text";
constexpr auto kBearerKey = "sizes/bearer";
constexpr auto kMarksKey = "sizes/marks";

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
    : QWidget(parent), settings(userSettings) {
    MakeField(xDimension, "xDimension", 0.05, 10, 4, 0.01);
    MakeField(magnification, "magnification", 1, 3000, 1, 5);
    MakeField(height, "height", 0.1, 500, 2, 1);
    MakeField(quietZone, "quietZone", 0, 100, 2, 0.5);
    MakeField(reduction, "reduction", 0, 25, 1, 1);
    resolutionLabel = new QLabel(this);
    resolutionBox = new QComboBox(this);
    resolutionBox->setObjectName(QStringLiteral("resolution"));
    resolutionBox->setEditable(true);
    resolutionBox->setInsertPolicy(QComboBox::NoInsert);
    resolutionBox->addItem(QString());
    for (const int dots : kResolutions) resolutionBox->addItem(QString::number(dots));
    resolutionLabel->setBuddy(resolutionBox);
    textBox = new QCheckBox(this);
    textBox->setObjectName(QStringLiteral("text"));
    bearerBox = new QCheckBox(this);
    bearerBox->setObjectName(QStringLiteral("bearer"));
    marksBox = new QCheckBox(this);
    marksBox->setObjectName(QStringLiteral("marks"));
    usualButton = new QPushButton(this);
    usualButton->setObjectName(QStringLiteral("usual"));
    usualButton->setAutoDefault(false);
    sizeLabel = new QLabel(this);
    sizeLabel->setObjectName(QStringLiteral("size"));
    sizeLabel->setTextInteractionFlags(Qt::TextSelectableByMouse);
    Arrange();
    Restore();
    for (Field* const field : {&xDimension, &height, &quietZone, &reduction}) {
        connect(field->box, &QDoubleSpinBox::valueChanged, this,
                [this, field] { TakeNumber(*field); });
    }
    connect(magnification.box, &QDoubleSpinBox::valueChanged, this,
            [this] { TakeMagnification(); });
    connect(resolutionBox, &QComboBox::currentTextChanged, this, [this] { Change(); });
    connect(textBox, &QCheckBox::clicked, this, [this](bool on) {
        isTextWanted = on;
        Change();
    });
    for (QCheckBox* const box : {bearerBox, marksBox})
        connect(box, &QCheckBox::clicked, this, [this] { Change(); });
    connect(usualButton, &QPushButton::clicked, this, [this] { TakeUsual(); });
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
    grid = new QGridLayout;
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
    resolutionBox->setItemText(0, QString());
    textBox->setText(Say(phrases::kTextBelow, locale));
    bearerBox->setText(Say(phrases::kBearerBars, locale));
    marksBox->setText(Say(phrases::kMarginMarks, locale));
    usualButton->setText(Say(phrases::kUsualSizes, locale));
    sizeLabel->setAccessibleName(Say(phrases::kDrawnSize, locale));
}

void SizeStrip::ShowType(const BarcodeType& shown) {
    type = &shown;
    const bool hasBars = type->symbology != Symbology::kText;
    for (const Field* const field : {&height, &reduction}) {
        const bool isOffered = hasBars && !(field == &height && type->HasFixedHeight());
        field->label->setEnabled(isOffered);
        field->box->setEnabled(isOffered);
    }
    textBox->setEnabled(hasBars && !IsTextPrinted());
    bearerBox->setEnabled(type->MayHaveBearerBars());
    marksBox->setEnabled(type->MayHaveMarginMarks());
    // Digits that the font prints, or that are all there is, cannot be left out.
    textBox->setChecked(!textBox->isEnabled() || isTextWanted.value_or(true));
}

void SizeStrip::ShowDrawing(const BarcodeDrawing* drawing) {
    usualButton->setEnabled(xDimension.isSet || height.isSet || quietZone.isSet ||
                            reduction.isSet || isTextWanted || Resolution() ||
                            bearerBox->isChecked() || marksBox->isChecked());
    if (drawing == nullptr) {
        sizeLabel->clear();
        return;
    }
    const double x = drawing->Module() * type->dimensions.modulesPerX;
    if (!xDimension.isSet) {
        ShowNumber(xDimension, x / kMillimetre);
        ShowNumber(magnification, 100 * x / type->dimensions.xDimension);
    }
    if (!height.isSet) ShowNumber(height, drawing->BarHeight() / kMillimetre);
    if (!quietZone.isSet)
        ShowNumber(quietZone, type->dimensions.quietLeft * drawing->Module() / kMillimetre);
    if (!reduction.isSet) ShowNumber(reduction, 0);
    const double width = drawing->Width() * drawing->Module();
    const double tall = drawing->Height() * drawing->Module();
    const auto number = [this](double value, int decimals) {
        return NumberText(value, decimals, language);
    };
    QString text =
        Say(phrases::kDrawnSizes, language)
            .arg(number(width / kMillimetre, 2), number(tall / kMillimetre, 2), number(width, 1),
                 number(tall, 1), number(x / kMillimetre, 3), number(x, 2));
    if (drawing->DotsPerInch()) {
        const double dots = x / kInch * *drawing->DotsPerInch();
        text += Say(phrases::kDotsPerModule, language)
                    .arg(number(dots, std::abs(dots - std::round(dots)) < 0.005 ? 0 : 2));
    }
    sizeLabel->setText(text);
}

DrawingWish SizeStrip::Wish() const {
    DrawingWish wish;
    if (xDimension.isSet) {
        if (const auto length = LengthOf(*xDimension.box)) wish.xDimension = length->number;
    }
    if (height.isSet && height.box->isEnabled()) wish.height = LengthOf(*height.box);
    if (quietZone.isSet) wish.quietZone = LengthOf(*quietZone.box);
    if (reduction.isSet && reduction.box->isEnabled()) {
        const QString written = QString::number(reduction.box->value(), 'f', 1) + '%';
        wish.barWidthReduction = FindReduction(written.toStdString());
    }
    if (textBox->isEnabled()) wish.isTextWanted = isTextWanted;
    wish.hasBearerBars = bearerBox->isEnabled() && bearerBox->isChecked();
    wish.hasMarginMarks = marksBox->isEnabled() && marksBox->isChecked();
    wish.dotsPerInch = Resolution();
    wish.isFitted = wish.dotsPerInch.has_value();
    return wish;
}

void SizeStrip::SetWish(const DrawingWish& wish) {
    const double x = wish.xDimension.value_or(type->dimensions.xDimension);
    const auto set = [](Field& field, std::optional<double> number) {
        field.isSet = number.has_value();
        const QSignalBlocker silence(field.box);
        if (number) field.box->setValue(*number);
    };
    const auto millimetres = [x](const std::optional<Length>& length) -> std::optional<double> {
        if (!length) return std::nullopt;
        return length->Points(x) / kMillimetre;
    };
    set(xDimension, wish.xDimension ? std::optional(*wish.xDimension / kMillimetre) : std::nullopt);
    if (wish.xDimension) ShowNumber(magnification, 100 * x / type->dimensions.xDimension);
    set(height, millimetres(wish.height));
    set(quietZone, millimetres(wish.quietZone));
    set(reduction, wish.barWidthReduction
                       ? std::optional(100 * wish.barWidthReduction->Points(x) / x)
                       : std::nullopt);
    isTextWanted = wish.isTextWanted;
    bearerBox->setChecked(wish.hasBearerBars);
    marksBox->setChecked(wish.hasMarginMarks);
    {
        const QSignalBlocker silence(resolutionBox);
        resolutionBox->setEditText(wish.dotsPerInch ? QString::number(*wish.dotsPerInch)
                                                    : QString());
    }
    ShowType(*type);
    Change();
}

void SizeStrip::AddWidget(QWidget* widget) {
    buttons->insertWidget(buttons->count() - 1, widget);
}

void SizeStrip::Restore() {
    const auto restore = [this](Field& field, const char* key) {
        const QVariant value = settings.value(QLatin1String(key));
        field.isSet = value.isValid();
        if (field.isSet) field.box->setValue(value.toDouble());
    };
    restore(xDimension, kXDimensionKey);
    restore(height, kHeightKey);
    restore(quietZone, kQuietZoneKey);
    restore(reduction, kReductionKey);
    resolutionBox->setEditText(settings.value(QLatin1String(kResolutionKey)).toString());
    const QVariant text = settings.value(QLatin1String(kTextKey));
    if (text.isValid()) isTextWanted = text.toBool();
    bearerBox->setChecked(settings.value(QLatin1String(kBearerKey), false).toBool());
    marksBox->setChecked(settings.value(QLatin1String(kMarksKey), false).toBool());
}

void SizeStrip::Store() {
    const auto store = [this](const char* key, bool isSet, const QVariant& value) {
        if (isSet) {
            Keep(settings, QLatin1String(key), value);
        } else {
            settings.remove(QLatin1String(key));
        }
    };
    store(kXDimensionKey, xDimension.isSet, xDimension.box->value());
    store(kHeightKey, height.isSet, height.box->value());
    store(kQuietZoneKey, quietZone.isSet, quietZone.box->value());
    store(kReductionKey, reduction.isSet, reduction.box->value());
    store(kResolutionKey, Resolution().has_value(), resolutionBox->currentText());
    store(kBearerKey, bearerBox->isChecked(), true);
    store(kMarksKey, marksBox->isChecked(), true);
    store(kTextKey, isTextWanted.has_value(), isTextWanted.value_or(false));
}

void SizeStrip::ShowNumber(Field& field, double number) {
    const QSignalBlocker silence(field.box);
    field.box->setValue(number);
}

void SizeStrip::TakeNumber(Field& field) {
    field.isSet = true;
    if (&field == &xDimension) {
        ShowNumber(magnification,
                   100 * field.box->value() * kMillimetre / type->dimensions.xDimension);
    }
    Change();
}

void SizeStrip::TakeMagnification() {
    xDimension.isSet = true;
    ShowNumber(xDimension,
               magnification.box->value() / 100 * type->dimensions.xDimension / kMillimetre);
    Change();
}

void SizeStrip::TakeUsual() {
    for (Field* const field : {&xDimension, &height, &quietZone, &reduction}) field->isSet = false;
    isTextWanted.reset();
    bearerBox->setChecked(false);
    marksBox->setChecked(false);
    {
        const QSignalBlocker silence(resolutionBox);
        resolutionBox->setEditText(QString());
    }
    ShowType(*type);
    Change();
}

void SizeStrip::Change() {
    Store();
    if (changed) changed();
}

std::optional<double> SizeStrip::Resolution() const {
    bool isNumber = false;
    const double dots = resolutionBox->currentText().toDouble(&isNumber);
    if (!isNumber || dots < kLeastResolution || dots > kMostResolution) return std::nullopt;
    return dots;
}

bool SizeStrip::IsTextPrinted() const {
    return type->face != nullptr && type->face->printsText;
}

}  // namespace linewright
