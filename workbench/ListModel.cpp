#include "workbench/ListModel.h"

#include <algorithm>
#include <utility>

#include "text/Readable.h"

namespace linewright {

namespace {

constexpr std::size_t kLetters = 26;

std::size_t PlaceOf(RowState state) {
    return static_cast<std::size_t>(state);
}

/** As spreadsheets do: A to Z, AA, AB … */
QString LetterName(std::size_t column) {
    QString name;
    for (std::size_t rest = column + 1; rest > 0; rest = (rest - 1) / kLetters) {
        name.prepend(QChar(static_cast<char16_t>(u'A' + (rest - 1) % kLetters)));
    }
    return name;
}

}  // namespace

int ListModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(table.rows.size());
}

int ListModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(table.width) + 1;
}

QVariant ListModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid()) return {};
    const auto row = static_cast<std::size_t>(index.row());
    const RowVerdict& verdict = verdicts[row];
    if (role == kStateRole) return static_cast<int>(verdict.state);
    if (index.column() > 0) {
        if (role != Qt::DisplayRole && role != Qt::EditRole) return {};
        return QString::fromStdString(
            table.rows[row][static_cast<std::size_t>(index.column()) - 1]);
    }
    const Shown& state = shown[PlaceOf(verdict.state)];
    if (role == Qt::DecorationRole) return state.icon;
    const bool isText = role == Qt::DisplayRole || role == Qt::AccessibleTextRole ||
                        (role == Qt::ToolTipRole && !verdict.words.empty());
    if (!isText) return {};
    if (verdict.words.empty()) return state.word;
    return form.arg(state.word, QString::fromStdString(Readable(verdict.words)));
}

bool ListModel::setData(const QModelIndex& index, const QVariant& value, int role) {
    if (!index.isValid() || index.column() == 0 || role != Qt::EditRole) return false;
    const auto row = static_cast<std::size_t>(index.row());
    std::string& cell = table.rows[row][static_cast<std::size_t>(index.column()) - 1];
    std::string text = value.toString().toStdString();
    if (text == cell) return true;
    cell = std::move(text);
    Put(row, {});
    next = std::min(next, row);
    Q_EMIT dataChanged(index.siblingAtColumn(0), index);
    return true;
}

QVariant ListModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (role != Qt::DisplayRole) return {};
    if (orientation == Qt::Vertical) return section + 1;
    return section == 0 ? title : ColumnName(static_cast<std::size_t>(section) - 1);
}

Qt::ItemFlags ListModel::flags(const QModelIndex& index) const {
    const Qt::ItemFlags flags = QAbstractTableModel::flags(index);
    return index.isValid() && index.column() > 0 ? flags | Qt::ItemIsEditable : flags;
}

bool ListModel::removeRows(int row, int count, const QModelIndex& parent) {
    if (parent.isValid() || row < 0 || count < 1 || row + count > rowCount()) return false;
    beginRemoveRows({}, row, row + count - 1);
    table.rows.erase(table.rows.begin() + row, table.rows.begin() + row + count);
    verdicts.erase(verdicts.begin() + row, verdicts.begin() + row + count);
    Recount();
    endRemoveRows();
    return true;
}

void ListModel::SetTable(CellTable&& newTable, bool hasHeader) {
    beginResetModel();
    table = std::move(newTable);
    names.reset();
    if (hasHeader && !table.rows.empty()) {
        names = std::move(table.rows.front());
        table.rows.erase(table.rows.begin());
    }
    verdicts.assign(table.rows.size(), {});
    wish.dataColumn = std::min(wish.dataColumn, table.width == 0 ? 0 : table.width - 1);
    Recount();
    endResetModel();
}

void ListModel::Append(CellTable&& more) {
    if (more.rows.empty()) return;
    if (more.width > table.width) {
        CellTable all = std::move(table);
        auto kept = std::move(names);
        all.Append(std::move(more));
        SetTable(std::move(all), false);
        if (kept) kept->resize(table.width);
        names = std::move(kept);
        Q_EMIT headerDataChanged(Qt::Horizontal, 0, columnCount() - 1);
        return;
    }
    const int first = rowCount();
    beginInsertRows({}, first, first + static_cast<int>(more.rows.size()) - 1);
    table.Append(std::move(more));
    verdicts.resize(table.rows.size());
    Recount();
    endInsertRows();
}

void ListModel::SetHeader(bool isThere) {
    if (isThere == names.has_value()) return;
    CellTable all = std::move(table);
    if (names) all.rows.insert(all.rows.begin(), std::move(*names));
    SetTable(std::move(all), isThere);
}

void ListModel::SetWish(const ListWish& newWish) {
    wish = newWish;
    JudgeAnew();
}

void ListModel::SetWords(std::array<Shown, kRowStates> words, const QString& stateTitle,
                         const QString& reasonForm) {
    shown = std::move(words);
    title = stateTitle;
    form = reasonForm;
    JudgeAnew();
    Q_EMIT headerDataChanged(Qt::Horizontal, 0, 0);
}

void ListModel::JudgeAnew() {
    verdicts.assign(table.rows.size(), {});
    Recount();
    if (table.rows.empty()) return;
    Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, 0));
}

bool ListModel::JudgeNext(const Judge& judge, int first, int count) {
    if (Count(RowState::kWaiting) == 0) return false;
    const auto isWaiting = [](const RowVerdict& row) { return row.state == RowState::kWaiting; };
    const auto begin = verdicts.begin() + std::clamp(first, 0, rowCount());
    const auto end = verdicts.begin() + std::clamp(first + count, 0, rowCount());
    auto found = begin < end ? std::find_if(begin, end, isWaiting) : end;
    if (found == end) {
        const auto from = verdicts.begin() + static_cast<std::ptrdiff_t>(next);
        found = std::find_if(from, verdicts.end(), isWaiting);
        next = static_cast<std::size_t>(found - verdicts.begin());
    }
    const auto row = static_cast<std::size_t>(found - verdicts.begin());
    Put(row, judge(WishOf(row)));
    if (firstJudged == endJudged) firstJudged = endJudged = row;
    firstJudged = std::min(firstJudged, row);
    endJudged = std::max(endJudged, row + 1);
    return true;
}

void ListModel::ShowJudged() {
    if (firstJudged == endJudged) return;
    const QModelIndex first = index(static_cast<int>(firstJudged), 0);
    const QModelIndex last = index(static_cast<int>(endJudged) - 1, 0);
    firstJudged = endJudged = 0;
    Q_EMIT dataChanged(first, last);
}

BarcodeWish ListModel::WishOf(std::size_t row) const {
    const std::vector<std::string>& cells = table.rows[row];
    BarcodeWish barcode;
    barcode.type = wish.type.empty() ? cells[wish.typeColumn] : wish.type;
    barcode.data = cells[wish.dataColumn];
    barcode.checkCharacter = wish.checkCharacter;
    barcode.ratio = wish.ratio;
    return barcode;
}

QString ListModel::ColumnName(std::size_t column) const {
    if (!names || column >= names->size() || (*names)[column].empty()) return LetterName(column);
    return QString::fromStdString((*names)[column]);
}

void ListModel::Put(std::size_t row, RowVerdict verdict) {
    --counts[PlaceOf(verdicts[row].state)];
    ++counts[PlaceOf(verdict.state)];
    verdicts[row] = std::move(verdict);
}

void ListModel::Recount() {
    counts.fill(0);
    for (const RowVerdict& verdict : verdicts) ++counts[PlaceOf(verdict.state)];
    next = 0;
    firstJudged = endJudged = 0;
}

}  // namespace linewright
