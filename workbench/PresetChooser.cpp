#include "workbench/PresetChooser.h"

#include <QHBoxLayout>
#include <QInputDialog>
#include <QMessageBox>
#include <QSignalBlocker>
#include <utility>

#include "words/Words.h"
#include "workbench/ListPhrases.h"

namespace linewright {

PresetChooser::PresetChooser(std::filesystem::path folder, QWidget* parent)
    : QWidget(parent), presets(std::move(folder)) {
    box = new QComboBox(this);
    box->setObjectName(QStringLiteral("preset"));
    storeButton = new QToolButton(this);
    storeButton->setObjectName(QStringLiteral("storePreset"));
    removeButton = new QToolButton(this);
    removeButton->setObjectName(QStringLiteral("removePreset"));
    for (QToolButton* const button : {storeButton, removeButton})
        button->setFocusPolicy(Qt::StrongFocus);
    auto* const row = new QHBoxLayout(this);
    row->setContentsMargins({});
    row->addWidget(box, 1);
    row->addWidget(storeButton);
    row->addWidget(removeButton);
    setFocusProxy(box);
    connect(box, &QComboBox::activated, this, [this] { Choose(); });
    connect(storeButton, &QToolButton::clicked, this, [this] { AskForName(); });
    connect(removeButton, &QToolButton::clicked, this, [this] { Remove(); });
}

void PresetChooser::Speak(const QString& locale) {
    language = locale;
    box->setAccessibleName(Say(phrases::kPresets, language));
    storeButton->setText(Say(phrases::kStorePreset, language));
    removeButton->setText(Say(phrases::kRemovePreset, language));
    Reload();
}

void PresetChooser::Reload() {
    const QSignalBlocker silence(box);
    const QString name = ChosenName();
    box->clear();
    box->addItem(Say(phrases::kUsualSizes, language));
    for (const std::string& preset : presets.Names()) {
        const QString text = QString::fromStdString(preset);
        box->addItem(text, text);
    }
    const int found = name.isEmpty() ? 0 : box->findData(name);
    box->setCurrentIndex(found < 0 ? 0 : found);
    removeButton->setEnabled(box->currentIndex() > 0);
}

DrawingWish PresetChooser::Wish() {
    DrawingWish wish;
    if (ChosenName().isEmpty()) return wish;
    if (Try([&] { wish = presets.Read(ChosenName().toStdString()); })) return wish;
    box->setCurrentIndex(0);
    Reload();
    return {};
}

void PresetChooser::showEvent(QShowEvent* event) {
    storeButton->setVisible(static_cast<bool>(sizes));
    removeButton->setVisible(static_cast<bool>(sizes));
    Reload();
    QWidget::showEvent(event);
}

void PresetChooser::Choose() {
    removeButton->setEnabled(box->currentIndex() > 0);
    const DrawingWish wish = Wish();
    if (chosen) chosen(wish);
}

void PresetChooser::AskForName() {
    bool isGiven = false;
    const QString name = QInputDialog::getText(this, Say(phrases::kPresets, language),
                                               Say(phrases::kPresetName, language),
                                               QLineEdit::Normal, ChosenName(), &isGiven);
    if (!isGiven) return;
    if (!Try([&] { presets.Store(name.toStdString(), sizes()); })) return;
    Reload();
    box->setCurrentIndex(box->findData(name));
    removeButton->setEnabled(true);
}

void PresetChooser::Remove() {
    const QString question = Say(phrases::kReallyRemove, language).arg(ChosenName());
    if (QMessageBox::question(this, Say(phrases::kPresets, language), question) != QMessageBox::Yes)
        return;
    if (Try([&] { presets.Remove(ChosenName().toStdString()); })) Reload();
}

bool PresetChooser::Try(const std::function<void()>& work) {
    try {
        work();
        return true;
    } catch (const PresetFailure& failure) {
        const std::string sentence = Sentence(failure, LanguageOf(language.toStdString()));
        QMessageBox::critical(this, Say(phrases::kPresets, language),
                              QString::fromStdString(sentence));
        return false;
    }
}

QString PresetChooser::ChosenName() const {
    return box->currentData().toString();
}

}  // namespace linewright
