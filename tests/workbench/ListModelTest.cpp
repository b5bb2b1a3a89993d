#include "workbench/ListModel.h"

#include <gtest/gtest.h>

#include <QSignalSpy>

namespace linewright {

namespace {

CellTable Numbers(int count) {
    CellTable table;
    for (int i = 0; i < count; ++i) table.Add({std::to_string(i)});
    return table;
}

/** Counts the requests for each row. */
struct CountingJudge {
    std::vector<int> requests;

    RowVerdict operator()(const BarcodeWish& wish) {
        ++requests.at(std::stoul(wish.data));
        return {RowState::kMade, "", wish.data};
    }
};

TEST(ListModel, AsksOnceForEachRowAndForThoseThatAreShownFirst) {
    ListModel model;
    model.SetTable(Numbers(1000), false);
    CountingJudge counting{std::vector<int>(1000)};
    const auto judge = [&](const BarcodeWish& wish) { return counting(wish); };
    for (int i = 0; i < 20; ++i) EXPECT_TRUE(model.JudgeNext(judge, 700, 20));
    for (std::size_t row = 700; row < 720; ++row) EXPECT_EQ(counting.requests[row], 1) << row;
    while (model.JudgeNext(judge, 700, 20)) continue;
    EXPECT_EQ(counting.requests, std::vector<int>(1000, 1));
    // An edit asks for its row alone.
    EXPECT_TRUE(model.setData(model.index(5, 1), "999", Qt::EditRole));
    while (model.JudgeNext(judge, 0, 0)) continue;
    EXPECT_EQ(counting.requests[999], 2);
    EXPECT_EQ(counting.requests[5], 1);
    EXPECT_EQ(model.Count(RowState::kMade), 1000U);
}

TEST(ListModel, TellsOfRowsTogetherWhenItIsAskedTo) {
    ListModel model;
    model.SetTable(Numbers(100), false);
    QSignalSpy changed(&model, &QAbstractItemModel::dataChanged);
    const auto judge = [](const BarcodeWish&) { return RowVerdict{RowState::kWarned, "w", ""}; };
    for (int i = 0; i < 10; ++i) model.JudgeNext(judge, 0, 0);
    EXPECT_EQ(changed.count(), 0);
    model.ShowJudged();
    model.ShowJudged();
    ASSERT_EQ(changed.count(), 1);
    EXPECT_EQ(changed[0][0].toModelIndex().row(), 0);
    EXPECT_EQ(changed[0][1].toModelIndex().row(), 9);
}

TEST(ListModel, KeepsVerdictsOfRowsThatStayWhenOthersComeOrGo) {
    ListModel model;
    model.SetTable(Numbers(10), false);
    CountingJudge counting{std::vector<int>(10)};
    const auto judge = [&](const BarcodeWish& wish) { return counting(wish); };
    while (model.JudgeNext(judge, 0, 0)) continue;
    model.removeRows(2, 3, {});
    EXPECT_EQ(model.Rows(), 7U);
    EXPECT_EQ(model.Count(RowState::kWaiting), 0U);
    EXPECT_EQ(model.VerdictOf(2).fontString, "5");
    model.Append(Numbers(2));
    EXPECT_EQ(model.Count(RowState::kWaiting), 2U);
    while (model.JudgeNext(judge, 0, 0)) continue;
    EXPECT_EQ(counting.requests[0], 2);
    EXPECT_EQ(counting.requests[9], 1);
    EXPECT_FALSE(model.removeRows(8, 2, {}));
}

TEST(ListModel, TheFirstRowMayNameTheColumns) {
    CellTable table;
    table.Add({"place", "number", ""});
    table.Add({"Shelf", "1", "x"});
    ListModel model;
    model.SetTable(std::move(table), true);
    EXPECT_EQ(model.Rows(), 1U);
    EXPECT_EQ(model.headerData(2, Qt::Horizontal, Qt::DisplayRole), "number");
    EXPECT_EQ(model.headerData(3, Qt::Horizontal, Qt::DisplayRole), "C");
    model.SetHeader(false);
    EXPECT_EQ(model.Rows(), 2U);
    EXPECT_EQ(model.CellsOf(0)[0], "place");
    EXPECT_EQ(model.headerData(2, Qt::Horizontal, Qt::DisplayRole), "B");
    EXPECT_EQ(model.ColumnName(26), "AA");
    EXPECT_EQ(model.ColumnName(701), "ZZ");
    EXPECT_EQ(model.ColumnName(702), "AAA");
    model.SetHeader(true);
    CellTable wider;
    wider.Add({"a", "2", "b", "c"});
    model.Append(std::move(wider));
    EXPECT_EQ(model.ColumnName(0), "place");
    EXPECT_EQ(model.columnCount(), 5);
    EXPECT_EQ(model.CellsOf(0).size(), 4U);
    EXPECT_EQ(model.Rows(), 2U);
}

TEST(ListModel, StatesCannotBeEdited) {
    ListModel model;
    model.SetTable(Numbers(1), false);
    EXPECT_FALSE(model.flags(model.index(0, 0)) & Qt::ItemIsEditable);
    EXPECT_TRUE(model.flags(model.index(0, 1)) & Qt::ItemIsEditable);
    EXPECT_FALSE(model.setData(model.index(0, 0), "x", Qt::EditRole));
}

}  // namespace

}  // namespace linewright
