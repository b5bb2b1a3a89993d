#include <QAccessible>
#include <QTest>

#include "tests/workbench/PageFixture.h"

namespace linewright {

namespace {

/** What is said of data: nothing that is not so, and nothing of the data before. */
class TruthTest : public PageFixture {};

struct Row {
    const char* type;
    const char* data;
    Tone tone;
    const char* badge;
};

constexpr auto kNoScannerWords =
    "No scanner reads this symbology; bars measured against the standard";

constexpr Row kRows[] = {
    {"EAN-13", "400638133393", Tone::kGood, "Scans"},
    {"EAN-13", "4006381333931", Tone::kGood, "Scans"},
    {"EAN-13", "4006381333932", Tone::kWarning, "Scans; the bars say 4006381333931"},
    {"EAN-13", "12", Tone::kWarning, "Scans; the bars say 0000000000123"},
    {"Code 128", "ABCabc123", Tone::kGood, "Scans"},
    {"Code 128", "A ", Tone::kWarning, "Scans; the bars say A"},
    {"Code 128", "(01)09501101530003", Tone::kGood, "Scans"},
    {"Interleaved 2 of 5 (Classic)", "12345", Tone::kGood, "Scans"},
    {"MSI Plessey", "1234567", Tone::kNeutral, kNoScannerWords},
    {"Postnet", "55555-1237", Tone::kWarning,
     "No scanner reads this symbology; the bars say 555551237"},
    {"USPS Intelligent Mail", "0123456709498765432101234567891", Tone::kNeutral, kNoScannerWords},
    {"Interleaved 2 of 5 Text", "1234", Tone::kNeutral, "Digits to read, no bars"},
    {"Interleaved 2 of 5 Text (Classic)", "1234", Tone::kNeutral, "Digits to read, no bars"},
    {"EAN-8", "x", Tone::kBad, "Refused"},
    {"EAN-8", "", Tone::kNeutral, "Nothing typed"},
};

TEST_F(TruthTest, TheBadgeIsGreenOnlyIfTheBarsSayWhatWasTyped) {
    Start();
    for (const Row& row : kRows) {
        Enter(row.type, row.data);
        EXPECT_EQ(Verdict(), row.badge) << row.type << ' ' << row.data;
        EXPECT_EQ(VerdictTone(), row.tone) << row.type << ' ' << row.data;
    }
}

TEST_F(TruthTest, NothingTypedShowsWhatTheTypeTakesAndItsSampleToClick) {
    Start();
    Enter("EAN-8", "");
    EXPECT_EQ(Message(), "EAN-8 takes: Up to 7 digits, or 8 with the check digit.");
    auto& sample = Named<QPushButton>("sample");
    ASSERT_TRUE(sample.isVisible());
    EXPECT_EQ(sample.text(), "&Use the Sample 1234567");
    QTest::mouseClick(&sample, Qt::LeftButton);
    EXPECT_EQ(Named<QLineEdit>("data").text(), "1234567");
    EXPECT_FALSE(sample.isVisible());
    EXPECT_EQ(Verdict(), "Scans");
}

TEST_F(TruthTest, WordsTellAWarningFromARefusal) {
    Start();
    Enter("EAN-13", "4006381333932");
    EXPECT_EQ(Message(), "Warning: The check digit 2 was replaced by the computed one, 1.");
    Start("deDE");
    Enter("EAN-13", "4006381333932");
    EXPECT_EQ(Message(), "Warnung: Die Prüfziffer 2 wurde durch die berechnete ersetzt, 1.");
}

TEST_F(TruthTest, ABadgeIsNeverThatOfOtherData) {
    Start();
    ChooseType("EAN-13");
    for (int i = 0; i < 20; ++i) {
        TypeIn("4006381333931");
        TypeIn("4006381333932");
        // Scanners have not said anything of it yet, or it is of this.
        const QString words = Named<Badge>("badge").Words();
        EXPECT_NE(words, "Scans");
        const bool isAwaited = i % 4 == 0;
        if (isAwaited) {
            EXPECT_EQ(Verdict(), "Scans; the bars say 4006381333931");
        }
        TypeIn("x");
        QTest::qWait(i);
        EXPECT_EQ(Named<Badge>("badge").Words(), "Refused");
    }
}

TEST_F(TruthTest, NothingMovesWhenAMessageComes) {
    Start();
    Enter("EAN-13", "4006381333931");
    Verdict();
    QHash<QString, QRect> places;
    const auto look = [&](const char* when) {
        for (const char* const name : {"data", "checkDigit", "ratio", "message", "area", "badge",
                                       "zoom", "fit", "xDimension", "copy", "export"}) {
            QWidget& widget = Named<QWidget>(name);
            const QRect place(widget.mapTo(&workbench->Window(), QPoint()), widget.size());
            if (!places.contains(name)) places[name] = place;
            EXPECT_EQ(places[name], place) << name << ' ' << when;
        }
    };
    look("at first");
    for (const char* const data : {"4006381333932", "x", "", "400638133393x123456789"}) {
        TypeIn(data);
        QTest::qWait(0);
        look(data);
    }
}

TEST_F(TruthTest, TheBadgeIsReadAloud) {
    Start();
    Enter("EAN-13", "4006381333932");
    Verdict();
    QAccessibleInterface* const badge =
        QAccessible::queryAccessibleInterface(&Named<Badge>("badge"));
    ASSERT_NE(badge, nullptr);
    EXPECT_EQ(badge->text(QAccessible::Name), "Scan check: Scans; the bars say 4006381333931");
    QAccessibleInterface* const area =
        QAccessible::queryAccessibleInterface(&Named<QWidget>("area"));
    EXPECT_EQ(area->text(QAccessible::Name), "Barcode");
    EXPECT_EQ(area->text(QAccessible::Description), badge->text(QAccessible::Name));
}

TEST_F(TruthTest, WarnsOfSizesOutsideTheStandard) {
    Start();
    Enter("EAN-13", "4006381333931");
    Named<QDoubleSpinBox>("xDimension").setValue(0.2);
    EXPECT_TRUE(Message().startsWith("Warning: The X-dimension of 0.2"))
        << qUtf8Printable(Message());
    EXPECT_TRUE(Message().endsWith('.'));
}

}  // namespace

}  // namespace linewright
