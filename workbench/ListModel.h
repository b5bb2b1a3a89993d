#pragma once

#include <QAbstractTableModel>
#include <QIcon>
#include <array>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "merge/CellTable.h"
#include "requests/BarcodeOutcome.h"

namespace linewright {

/** What is known of a row's barcode. */
enum class RowState { kWaiting, kMade, kWarned, kRefused };
inline constexpr std::size_t kRowStates = 4;

struct RowVerdict {
    RowState state = RowState::kWaiting;
    /** Warnings, or why it was refused; UTF-8. */
    std::string words{};
    std::string fontString{};
};

/** What all rows ask for, and which cells they say it in. */
struct ListWish {
    /** A type name of the plug-in; "" where a column has it. */
    std::string type{};
    std::size_t typeColumn = 0;
    std::size_t dataColumn = 0;
    uint8 checkCharacter = 0;
    double ratio = 2.0;
};

/** The rows of a list: in front what became of each, behind it its cells, which can be edited. A
 *  row is judged once, and again when something of it changes. */
class ListModel final : public QAbstractTableModel {
  public:
    static constexpr int kStateRole = Qt::UserRole;
    /** Judges a barcode. */
    using Judge = std::function<RowVerdict(const BarcodeWish&)>;
    /** How a state is shown. */
    struct Shown {
        QString word;
        QIcon icon;
    };

    using QAbstractTableModel::QAbstractTableModel;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    bool removeRows(int row, int count, const QModelIndex& parent) override;

    /** Takes the place of all rows. */
    void SetTable(CellTable&& newTable, bool hasHeader);
    /** Adds rows below the others. */
    void Append(CellTable&& more);
    /** Whether the first row of the table has the names of the columns. */
    void SetHeader(bool isThere);
    bool HasHeader() const { return names.has_value(); }
    void SetWish(const ListWish& newWish);
    const ListWish& Wish() const { return wish; }
    /** In the order of RowState; `stateTitle` stands above them, and of `reasonForm` %1 is the
     * state and %2 its reason. */
    void SetWords(std::array<Shown, kRowStates> words, const QString& stateTitle,
                  const QString& reasonForm);
    /** All rows wait again. */
    void JudgeAnew();

    /** Judges one row that waits: of those from `first` on for `count` rows, else the next one.
     *  False when none waits. */
    bool JudgeNext(const Judge& judge, int first, int count);
    /** Tells views of all that was judged since the last call. */
    void ShowJudged();

    BarcodeWish WishOf(std::size_t row) const;
    const RowVerdict& VerdictOf(std::size_t row) const { return verdicts[row]; }
    const std::vector<std::string>& CellsOf(std::size_t row) const { return table.rows[row]; }
    std::size_t Count(RowState state) const { return counts[static_cast<std::size_t>(state)]; }
    std::size_t Rows() const { return table.rows.size(); }
    /** What a column of cells is called: by the header, else by its letter. */
    QString ColumnName(std::size_t column) const;
    const std::optional<std::vector<std::string>>& Names() const { return names; }
    std::size_t Width() const { return table.width; }

  private:
    void Put(std::size_t row, RowVerdict verdict);
    void Recount();

    CellTable table;
    std::optional<std::vector<std::string>> names;
    std::vector<RowVerdict> verdicts;
    std::array<std::size_t, kRowStates> counts{};
    ListWish wish;
    std::array<Shown, kRowStates> shown;
    QString title;
    QString form;
    /** No row before it waits. */
    std::size_t next = 0;
    // The rows whose verdicts views do not know yet.
    std::size_t firstJudged = 0;
    std::size_t endJudged = 0;
};

}  // namespace linewright
