#include "workbench/ListFields.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QSignalBlocker>
#include <array>
#include <utility>

#include "workbench/ListPhrases.h"
#include "workbench/Text.h"

namespace linewright {

namespace {

constexpr std::array kRatios{2.0, 2.5, 3.0};

}  // namespace

ListFields::ListFields(std::filesystem::path presetFolder, QWidget* parent) : QWidget(parent) {
    const auto named = [](auto* widget, const char* name) {
        widget->setObjectName(QLatin1String(name));
        return widget;
    };
    openButton = named(new QPushButton(this), "open");
    pasteButton = named(new QPushButton(this), "paste");
    sequenceButton = named(new QPushButton(this), "sequence");
    clearButton = named(new QPushButton(this), "clear");
    headerBox = named(new QCheckBox(this), "header");
    typeBox = named(new QComboBox(this), "type");
    columnBox = named(new QComboBox(this), "dataColumn");
    checkDigitBox = named(new QCheckBox(this), "checkDigit");
    ratioBox = named(new QComboBox(this), "ratio");
    for ([[maybe_unused]] const double ratio : kRatios) ratioBox->addItem(QString());
    sizes = new PresetChooser(std::move(presetFolder), this);
    typeLabel = new QLabel(this);
    columnLabel = new QLabel(this);
    ratioLabel = new QLabel(this);
    sizesLabel = new QLabel(this);
    typeLabel->setBuddy(typeBox);
    columnLabel->setBuddy(columnBox);
    ratioLabel->setBuddy(ratioBox);
    sizesLabel->setBuddy(sizes);
    Arrange();
    const auto change = [this] {
        if (changed) changed();
    };
    connect(typeBox, &QComboBox::currentIndexChanged, this, [this, change] {
        ShowOptions();
        change();
    });
    connect(columnBox, &QComboBox::currentIndexChanged, this, change);
    connect(checkDigitBox, &QCheckBox::toggled, this, change);
    connect(ratioBox, &QComboBox::currentIndexChanged, this, change);
}

void ListFields::Arrange() {
    constexpr int kSpacing = 12;
    auto* const buttons = new QHBoxLayout;
    for (QPushButton* const button : {openButton, pasteButton, sequenceButton, clearButton})
        buttons->addWidget(button);
    buttons->addStretch();
    buttons->addWidget(headerBox);
    auto* const grid = new QGridLayout;
    grid->setHorizontalSpacing(kSpacing);
    grid->addWidget(typeLabel, 0, 0);
    grid->addWidget(typeBox, 0, 1);
    grid->addWidget(ratioLabel, 0, 2);
    grid->addWidget(ratioBox, 0, 3);
    grid->addWidget(checkDigitBox, 0, 4);
    grid->addWidget(columnLabel, 1, 0);
    grid->addWidget(columnBox, 1, 1);
    grid->addWidget(sizesLabel, 1, 2);
    grid->addWidget(sizes, 1, 3, 1, 2);
    grid->setColumnStretch(1, 2);
    grid->setColumnStretch(4, 1);
    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins({});
    column->setSpacing(kSpacing);
    column->addLayout(buttons);
    column->addLayout(grid);
}

void ListFields::Speak(const std::vector<TypeDescription>& newTypes, const QString& locale) {
    const bool isFirst = types.empty();
    types = newTypes;
    language = locale;
    const auto say = [this](QLabel* label, const Phrase& phrase) {
        label->setText(Say(phrase, language));
        label->buddy()->setAccessibleName(SpokenText(label->text()));
    };
    openButton->setText(Say(phrases::kOpenList, language));
    pasteButton->setText(Say(phrases::kPasteCells, language));
    sequenceButton->setText(Say(phrases::kSequence, language));
    clearButton->setText(Say(phrases::kClearList, language));
    headerBox->setText(Say(phrases::kHasHeader, language));
    checkDigitBox->setText(Say(phrases::kListCheckDigit, language));
    say(typeLabel, phrases::kListType);
    say(columnLabel, phrases::kDataColumn);
    say(ratioLabel, phrases::kListRatio);
    say(sizesLabel, phrases::kListSizes);
    for (std::size_t i = 0; i < kRatios.size(); ++i)
        ratioBox->setItemText(static_cast<int>(i),
                              NumberText(kRatios[i], 1, language) + QLatin1String(" : 1"));
    sizes->Speak(language);
    const QSignalBlocker silence(typeBox);
    for (int i = 0; i < static_cast<int>(types.size()); ++i) {
        const TypeDescription& type = types[static_cast<std::size_t>(i)];
        const QString text = QString::fromStdString(type.displayText);
        if (isFirst) {
            typeBox->addItem(text);
        } else {
            typeBox->setItemText(i, text);
        }
    }
}

void ListFields::ShowColumns(const ListModel& model) {
    const QSignalBlocker silentTypes(typeBox);
    const QSignalBlocker silentColumns(columnBox);
    const int chosenType = typeBox->currentIndex();
    const int chosenColumn = columnBox->currentIndex();
    while (typeBox->count() > static_cast<int>(types.size())) {
        typeBox->removeItem(typeBox->count() - 1);
    }
    columnBox->clear();
    for (std::size_t column = 0; column < model.Width(); ++column) {
        const QString name = model.ColumnName(column);
        columnBox->addItem(Say(phrases::kColumn, language).arg(name));
        typeBox->addItem(Say(phrases::kTypeInColumn, language).arg(name));
    }
    typeBox->setCurrentIndex(chosenType < typeBox->count() ? chosenType : 0);
    columnBox->setCurrentIndex(static_cast<int>(model.Wish().dataColumn));
    if (chosenColumn >= 0 && chosenColumn < columnBox->count())
        columnBox->setCurrentIndex(chosenColumn);
    if (typeBox->currentIndex() != chosenType) ShowOptions();
}

ListWish ListFields::Wish() const {
    ListWish wish;
    wish.type = ChosenType();
    if (wish.type.empty())
        wish.typeColumn = static_cast<std::size_t>(typeBox->currentIndex()) - types.size();
    wish.dataColumn = static_cast<std::size_t>(std::max(0, columnBox->currentIndex()));
    wish.checkCharacter = checkDigitBox->isEnabled() && checkDigitBox->isChecked() ? 1 : 0;
    wish.ratio = kRatios.at(static_cast<std::size_t>(ratioBox->currentIndex()));
    return wish;
}

void ListFields::ChooseType(const std::string& typeName) {
    const QSignalBlocker silence(typeBox);
    for (std::size_t i = 0; i < types.size(); ++i) {
        if (types[i].typeName == typeName) typeBox->setCurrentIndex(static_cast<int>(i));
    }
    ShowOptions();
}

std::string ListFields::ChosenType() const {
    const auto index = static_cast<std::size_t>(typeBox->currentIndex());
    return index < types.size() ? types[index].typeName : std::string();
}

void ListFields::ShowOptions() {
    const auto index = static_cast<std::size_t>(typeBox->currentIndex());
    const QSignalBlocker silence(checkDigitBox);
    if (index >= types.size()) {
        checkDigitBox->setEnabled(true);
        ratioBox->setEnabled(true);
        return;
    }
    // The flags: the check digit can be chosen, it is on at first, the ratio can be chosen.
    const auto flags = types[index].optionFlags.value_or(std::array<uint16, 3>{});
    checkDigitBox->setEnabled(flags[0] != 0);
    checkDigitBox->setChecked(flags[1] != 0);
    ratioBox->setEnabled(flags[2] != 0);
}

}  // namespace linewright
