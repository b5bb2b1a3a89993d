#include "workbench/EntryFields.h"

#include <QEvent>
#include <QGridLayout>
#include <QSignalBlocker>
#include <algorithm>
#include <array>

#include "workbench/Language.h"
#include "workbench/PagePhrases.h"
#include "workbench/Text.h"

namespace linewright {

namespace {

constexpr std::array kRatios{2.0, 2.5, 3.0};
constexpr int kMessageLines = 4;

/** Whether the check digit box is the user's to tick. */
bool IsCheckOffered(const BarcodeType& type) {
    return type.optionFlags[0] > 0;
}

}  // namespace

EntryFields::EntryFields(QWidget* parent) : QWidget(parent) {
    heading = new QLabel(this);
    heading->setObjectName(QStringLiteral("heading"));
    QFont large = heading->font();
    large.setBold(true);
    large.setPointSizeF(large.pointSizeF() * 1.2);
    heading->setFont(large);
    usage = new QLabel(this);
    usage->setObjectName(QStringLiteral("usage"));
    usage->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    dataLabel = new QLabel(this);
    dataBox = new DataEdit(this);
    dataBox->setObjectName(QStringLiteral("data"));
    dataLabel->setBuddy(dataBox);
    checkDigitBox = new QCheckBox(this);
    checkDigitBox->setObjectName(QStringLiteral("checkDigit"));
    ratioLabel = new QLabel(this);
    ratioBox = new QComboBox(this);
    ratioBox->setObjectName(QStringLiteral("ratio"));
    for (std::size_t i = 0; i < kRatios.size(); ++i) ratioBox->addItem(QString());
    ratioLabel->setBuddy(ratioBox);
    message = new QLabel(this);
    message->setObjectName(QStringLiteral("message"));
    message->setTextFormat(Qt::PlainText);
    message->setWordWrap(true);
    message->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    message->setTextInteractionFlags(Qt::TextSelectableByMouse);
    // It has its room whatever it says, so that nothing else moves.
    message->setFixedHeight(kMessageLines * message->fontMetrics().lineSpacing());
    sampleButton = new QPushButton(this);
    sampleButton->setObjectName(QStringLiteral("sample"));
    sampleButton->setAutoDefault(false);
    QSizePolicy keepsItsRoom = sampleButton->sizePolicy();
    keepsItsRoom.setRetainSizeWhenHidden(true);
    sampleButton->setSizePolicy(keepsItsRoom);
    Arrange();
    connect(dataBox, &QLineEdit::textChanged, this, [this](const QString& text) {
        sampleButton->setVisible(text.isEmpty());
        if (changed) changed();
    });
    connect(checkDigitBox, &QCheckBox::toggled, this, [this] {
        if (changed) changed();
    });
    connect(ratioBox, &QComboBox::currentIndexChanged, this, [this] {
        if (changed) changed();
    });
    connect(sampleButton, &QPushButton::clicked, this, [this] {
        dataBox->setText(sample);
        dataBox->setFocus();
    });
    setFocusProxy(dataBox);
}

void EntryFields::Arrange() {
    constexpr int kSpacing = 8;
    auto* const grid = new QGridLayout(this);
    grid->setContentsMargins({});
    grid->setHorizontalSpacing(kSpacing);
    grid->setVerticalSpacing(kSpacing / 2);
    grid->setColumnStretch(1, 1);
    grid->addWidget(heading, 0, 0, 1, 2);
    grid->addWidget(sampleButton, 0, 2, 1, 3, Qt::AlignRight);
    grid->addWidget(usage, 1, 0, 1, 5);
    grid->addWidget(dataLabel, 2, 0);
    grid->addWidget(dataBox, 2, 1, 1, 4);
    grid->addWidget(checkDigitBox, 3, 2);
    grid->addWidget(ratioLabel, 3, 3);
    grid->addWidget(ratioBox, 3, 4);
    grid->addWidget(message, 4, 0, 1, 5);
    setTabOrder(dataBox, sampleButton);
    setTabOrder(sampleButton, checkDigitBox);
    setTabOrder(checkDigitBox, ratioBox);
}

void EntryFields::Speak(const QString& locale) {
    language = locale;
    dataLabel->setText(Say(phrases::kPageData, locale));
    dataBox->setAccessibleName(SpokenText(dataLabel->text()));
    checkDigitBox->setText(Say(phrases::kPageCheckDigit, locale));
    ratioLabel->setText(Say(phrases::kPageRatio, locale));
    ratioBox->setAccessibleName(SpokenText(ratioLabel->text()));
    const QSignalBlocker silence(ratioBox);
    for (std::size_t i = 0; i < kRatios.size(); ++i) {
        ratioBox->setItemText(static_cast<int>(i),
                              NumberText(kRatios[i], 1, locale) + QLatin1String(" : 1"));
    }
}

void EntryFields::ShowType(const TypeTexts& shown) {
    const bool isOther = type != shown.type;
    type = shown.type;
    sample = shown.sample;
    heading->setText(shown.name);
    usage->setText(shown.usage);
    usage->setToolTip(shown.usage);
    dataBox->setAccessibleDescription(shown.takes);
    sampleButton->setText(Say(phrases::kUseSample, language).arg(sample));
    sampleButton->setVisible(dataBox->text().isEmpty());
    checkDigitBox->setToolTip(CheckDigitHelp());
    checkDigitBox->setAccessibleDescription(CheckDigitHelp());
    if (!isOther) return;
    const QSignalBlocker checkDigit(checkDigitBox);
    const QSignalBlocker ratio(ratioBox);
    checkDigitBox->setEnabled(IsCheckOffered(*type));
    checkDigitBox->setTristate(type->check == CheckDigit::kByPreference);
    if (type->check == CheckDigit::kByPreference) {
        checkDigitBox->setCheckState(Qt::PartiallyChecked);
    } else {
        checkDigitBox->setChecked(
            type->check == CheckDigit::kAlways ||
            (type->check == CheckDigit::kOnRequest && type->optionFlags[1] > 0));
    }
    ratioLabel->setEnabled(type->optionFlags[2] > 0);
    ratioBox->setEnabled(type->optionFlags[2] > 0);
    ratioBox->setCurrentIndex(0);
}

QString EntryFields::CheckDigitHelp() const {
    switch (type->check) {
        case CheckDigit::kAlways: return Say(phrases::kCheckAlways, language);
        case CheckDigit::kByPreference: return Say(phrases::kCheckByPreference, language);
        case CheckDigit::kNone: return Say(phrases::kCheckNone, language);
        case CheckDigit::kOnRequest: return {};
    }
    return {};
}

void EntryFields::ShowMessage(const BarcodeStatus& status) {
    message->setText(status.message);
    // Rich text breaks its lines.
    message->setToolTip(QStringLiteral("<qt>%1</qt>").arg(status.message.toHtmlEscaped()));
    tone = status.messageTone;
    Colour();
}

BarcodeWish EntryFields::Wish() const {
    // A type that does not offer its check digit is asked as the plug-in says of it.
    const bool isWanted =
        IsCheckOffered(*type) ? checkDigitBox->isChecked() : type->optionFlags[1] > 0;
    return {
        .type = std::string(type->name),
        .data = dataBox->text().toStdString(),
        .isUtf8 = true,
        .checkCharacter = static_cast<uint8>(isWanted ? 1 : 0),
        .ratio = kRatios[static_cast<std::size_t>(ratioBox->currentIndex())],
    };
}

void EntryFields::SetWish(const BarcodeWish& wish) {
    {
        const QSignalBlocker checkDigit(checkDigitBox);
        const QSignalBlocker ratio(ratioBox);
        const QSignalBlocker typed(dataBox);
        if (IsCheckOffered(*type)) checkDigitBox->setChecked(wish.checkCharacter != 0);
        const auto found = std::find(kRatios.begin(), kRatios.end(), wish.ratio);
        if (ratioBox->isEnabled() && found != kRatios.end())
            ratioBox->setCurrentIndex(static_cast<int>(found - kRatios.begin()));
        dataBox->SetData(QString::fromStdString(wish.data));
    }
    sampleButton->setVisible(dataBox->text().isEmpty());
    if (changed) changed();
}

void EntryFields::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) Colour();
}

void EntryFields::Colour() {
    QPalette colours = message->palette();
    const QColor colour = TextColour(tone, palette());
    if (colours.color(QPalette::WindowText) == colour) return;
    colours.setColor(QPalette::WindowText, colour);
    message->setPalette(colours);
}

}  // namespace linewright
