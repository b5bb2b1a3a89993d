#pragma once

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QTableView>
#include <QWidget>
#include <filesystem>
#include <vector>

#include "requests/Service.h"
#include "workbench/ListModel.h"
#include "workbench/PresetChooser.h"

namespace linewright {

/** What stands above the rows of a list: where they come from, and what they ask for. */
class ListFields final : public QWidget {
  public:
    ListFields(std::filesystem::path presetFolder, QWidget* parent);

    /** Hears when rows ask for something else. */
    std::function<void()> changed;

    void Speak(const std::vector<TypeDescription>& newTypes, const QString& locale);
    /** Offers the columns of a list. */
    void ShowColumns(const ListModel& model);

    ListWish Wish() const;
    /** A type name of the plug-in, or "" for the column that is chosen. */
    void ChooseType(const std::string& typeName);
    std::string ChosenType() const;

    QPushButton* openButton;
    QPushButton* pasteButton;
    QPushButton* sequenceButton;
    QPushButton* clearButton;
    QCheckBox* headerBox;
    PresetChooser* sizes;

  private:
    void Arrange();
    void ShowOptions();

    std::vector<TypeDescription> types;
    QString language;
    QComboBox* typeBox;
    QLabel* typeLabel;
    QComboBox* columnBox;
    QLabel* columnLabel;
    QCheckBox* checkDigitBox;
    QComboBox* ratioBox;
    QLabel* ratioLabel;
    QLabel* sizesLabel;
};

}  // namespace linewright
