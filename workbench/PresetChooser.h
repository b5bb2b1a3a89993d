#pragma once

#include <QComboBox>
#include <QToolButton>
#include <QWidget>
#include <filesystem>
#include <functional>

#include "presets/PresetFolder.h"

namespace linewright {

/** Chooses among the usual sizes and the presets that the user has stored, and stores more. */
class PresetChooser final : public QWidget {
  public:
    /** Presets are the files of the folder. */
    PresetChooser(std::filesystem::path folder, QWidget* parent);

    /** Hears what was chosen: nothing is wished for by the usual sizes. */
    std::function<void(const DrawingWish&)> chosen;
    /** Has the sizes that are to be stored. Without it nothing can be. */
    std::function<DrawingWish()> sizes;

    void Speak(const QString& locale);
    /** Looks into the folder again. */
    void Reload();
    /** What the chosen one says; nothing where it cannot be read any more, which is told. */
    DrawingWish Wish();

  protected:
    void showEvent(QShowEvent* event) override;

  private:
    void Choose();
    void AskForName();
    void Remove();
    /** Tells what is wrong where the work fails. */
    bool Try(const std::function<void()>& work);
    QString ChosenName() const;

    PresetFolder presets;
    QString language;
    QComboBox* box;
    QToolButton* storeButton;
    QToolButton* removeButton;
};

}  // namespace linewright
