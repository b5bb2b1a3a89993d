#include <QTest>

#include "tests/workbench/PageFixture.h"

namespace linewright {

namespace {

class ChooserTest : public PageFixture {
  protected:
    /** The names of the types that are shown, group by group. */
    QStringList Shown() {
        QStringList names;
        const QAbstractItemModel& model = *Named<QTreeView>("types").model();
        for (int group = 0; group < model.rowCount(); ++group) {
            const QModelIndex parent = model.index(group, 0);
            for (int row = 0; row < model.rowCount(parent); ++row)
                names << model.index(row, 0, parent).data().toString();
        }
        return names;
    }
    QStringList Groups() {
        QStringList titles;
        const QAbstractItemModel& model = *Named<QTreeView>("types").model();
        for (int group = 0; group < model.rowCount(); ++group)
            titles << model.index(group, 0).data().toString();
        return titles;
    }
    void Search(const QString& words) {
        auto& field = Named<QLineEdit>("filter");
        field.clear();
        QTest::keyClicks(&field, words);
    }
};

TEST_F(ChooserTest, ShowsAllTypesInGroupsWithTheCurrentFamilyFirst) {
    Start();
    EXPECT_EQ(Shown().size(), 27);
    EXPECT_EQ(Groups(), QStringList({"Retail", "Logistics and industry", "Mail",
                                     "Libraries and shelves", "Classic"}));
    EXPECT_EQ(Shown().first(), "EAN-8");
    const auto firstClassic = Shown().indexOf("Postnet (Classic)");
    for (const QString& name : Shown().mid(0, firstClassic))
        EXPECT_FALSE(name.contains("(Classic)")) << qUtf8Printable(name);
}

TEST_F(ChooserTest, EachTypeHasALineOnWhatItIsFor) {
    Start();
    const QAbstractItemModel& model = *Named<QTreeView>("types").model();
    for (int group = 0; group < model.rowCount(); ++group) {
        const QModelIndex parent = model.index(group, 0);
        for (int row = 0; row < model.rowCount(parent); ++row) {
            const QString line = model.index(row, 1, parent).data().toString();
            EXPECT_FALSE(line.isEmpty());
            EXPECT_FALSE(line.contains('\n'));
        }
    }
}

TEST_F(ChooserTest, TheFieldFindsNamesHoweverTheyAreWrittenAndUses) {
    Start();
    const std::pair<const char*, QStringList> rows[]{
        {"ean13", {"EAN-13", "EAN-13 (Classic)"}},
        {"EAN-8", {"EAN-8"}},
        {"code 128",
         {"Code 128", "Code 128 A (Classic)", "Code 128 B (Classic)", "Code 128 C (Classic)"}},
        {"blood", {"Codabar", "Codabar (Classic)"}},
        {"imb", {"USPS Intelligent Mail"}},
        {"xyz", {}},
    };
    for (const auto& [words, names] : rows) {
        Search(words);
        EXPECT_EQ(Shown(), names) << words;
        EXPECT_EQ(ChosenType(), "EAN-13") << "what is found is not what is chosen";
    }
    Search("");
    EXPECT_EQ(Shown().size(), 27);
}

TEST_F(ChooserTest, ReturnTakesTheFirstThatIsLeftAndArrowsWalk) {
    Start();
    QTest::keyClick(&workbench->Window(), Qt::Key_F, Qt::ControlModifier);
    auto& field = Named<QLineEdit>("filter");
    EXPECT_EQ(workbench->Window().focusWidget(), &field);
    QTest::keyClicks(&field, "code39");
    QTest::keyClick(&field, Qt::Key_Return);
    EXPECT_EQ(ChosenType(), "Code 39");
    QTest::keyClick(&field, Qt::Key_Down);
    EXPECT_EQ(workbench->Window().focusWidget()->objectName(), "types");
    // Over the title of a group, which changes nothing.
    QTest::keyClick(workbench->Window().focusWidget(), Qt::Key_Down);
    EXPECT_EQ(ChosenType(), "Code 39");
    QTest::keyClick(workbench->Window().focusWidget(), Qt::Key_Down);
    EXPECT_EQ(ChosenType(), "Code 39 (Classic)");
}

TEST_F(ChooserTest, TheKeyboardReachesTheTypesAndAllElse) {
    Start();
    Enter("Code 39", "KEYS");
    Verdict();
    Named<QLineEdit>("filter").setFocus();
    for (const char* const name :
         {"types", "data", "checkDigit", "ratio", "area", "zoom", "fit", "xDimension",
          "magnification", "height", "quietZone", "reduction", "resolution", "text", "copy",
          "copyAs", "export", "types"}) {
        QTest::keyClick(workbench->Window().focusWidget(), Qt::Key_Tab);
        if (workbench->Window().focusWidget()->objectName().isEmpty() ||
            workbench->Window().focusWidget()->objectName().startsWith("qt_"))
            QTest::keyClick(workbench->Window().focusWidget(), Qt::Key_Tab);
        EXPECT_EQ(workbench->Window().focusWidget()->objectName(), name);
    }
    const std::pair<Qt::Key, const char*> mnemonics[]{
        {Qt::Key_S, "filter"}, {Qt::Key_D, "data"},       {Qt::Key_R, "ratio"},
        {Qt::Key_Z, "zoom"},   {Qt::Key_X, "xDimension"}, {Qt::Key_M, "magnification"},
        {Qt::Key_G, "height"}, {Qt::Key_Q, "quietZone"},  {Qt::Key_B, "reduction"},
    };
    for (const auto& [key, name] : mnemonics) {
        QTest::keyClick(&workbench->Window(), key, Qt::AltModifier);
        EXPECT_EQ(workbench->Window().focusWidget()->objectName(), name);
        EXPECT_FALSE(workbench->Window().focusWidget()->accessibleName().isEmpty()) << name;
    }
}

TEST_F(ChooserTest, TypesThatWereUsedStandOnTop) {
    Start();
    Enter("Code 39", "FIX");
    Copied();
    Enter("EAN-8", "1234567");
    Copied();
    EXPECT_EQ(Groups().first(), "Used last");
    EXPECT_EQ(Shown().mid(0, 2), QStringList({"EAN-8", "Code 39"}));
    EXPECT_EQ(ChosenType(), "EAN-8");
    Start();
    EXPECT_EQ(Shown().mid(0, 2), QStringList({"EAN-8", "Code 39"}));
}

}  // namespace

}  // namespace linewright
