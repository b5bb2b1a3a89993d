#pragma once

#include <QLabel>
#include <QLineEdit>
#include <QSortFilterProxyModel>
#include <QStandardItemModel>
#include <QTreeView>
#include <functional>
#include <vector>

#include "workbench/TypeTexts.h"

namespace linewright {

/** The types in groups, those used last on top, each with a line on what it is for, and a field
 *  that leaves those of a word. One type is always chosen, whether the field shows it or not. */
class TypeChooser final : public QWidget {
  public:
    explicit TypeChooser(QWidget* parent);

    /** Hears when the user chooses another type. */
    std::function<void()> typeChosen;

    /** Shows the types, which are not empty, in a locale. */
    void Speak(const std::vector<TypeTexts>& typeTexts, const QString& locale);
    /** Those used last, the last one first. */
    void SetRecent(const std::vector<const BarcodeType*>& types);

    /** Lets the user type into the field. */
    void StartSearch();

    const TypeTexts& Chosen() const;
    /** The first one, where there is no such type. */
    void Choose(const BarcodeType* type);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void Fill();
    void AddGroup(const QString& title, const std::vector<const BarcodeType*>& types);
    void Filter(const QString& text);
    void ShowGroups();
    /** Marks the row of the type that is chosen, if it is shown. */
    void MarkChosen();
    void TakeCurrent(const QModelIndex& index);

    std::vector<TypeTexts> texts;
    std::vector<const BarcodeType*> recent;
    const BarcodeType* chosen = nullptr;
    bool isFilling = false;
    QString language;
    QStandardItemModel model;
    QSortFilterProxyModel shown;
    QLabel* label;
    QLineEdit* field;
    QTreeView* list;
};

}  // namespace linewright
