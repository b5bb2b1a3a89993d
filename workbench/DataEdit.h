#pragma once

#include <QLineEdit>
#include <functional>

namespace linewright {

/** A line to type data in. A cell that is pasted or dropped from a spreadsheet loses the line break
 *  that it ends with; several cells are not taken but passed on. */
class DataEdit final : public QLineEdit {
  public:
    explicit DataEdit(QWidget* parent);

    /** Hears of several cells as they were pasted. */
    std::function<void(const QString& cells)> cellsPasted;

    /** Takes a text as it is, as if it had been here from the beginning. */
    void SetData(const QString& text);

  private:
    void MindCells(const QString& text);

    QString before;
};

}  // namespace linewright
