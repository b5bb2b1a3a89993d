#include "tests/workbench/ListTest.h"

#include <QApplication>
#include <QClipboard>
#include <QDir>
#include <QFileDialog>
#include <QInputDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QMimeData>
#include <QScrollBar>

#include "workbench/SequenceDialog.h"

namespace linewright {

void ListTest::Paste(const QString& text) {
    QApplication::clipboard()->setText(text);
    Click("paste");
    WaitUntilJudged();
}

void ListTest::WaitUntilJudged() {
    // What was typed comes later.
    QTest::qWait(0);
    EXPECT_TRUE(
        QTest::qWaitFor([this] { return Page().Model().Count(RowState::kWaiting) == 0; }, 60000));
    QTest::qWait(0);
}

void ListTest::WaitUntilIdle() {
    QTest::qWait(0);
    EXPECT_TRUE(
        QTest::qWaitFor([this] { return !Named<QAbstractButton>("cancel").isVisible(); }, 60000));
    WaitUntilJudged();
}

void ListTest::ChooseListType(const QString& text) {
    auto& types = Named<QComboBox>("type");
    const int wanted = types.findText(text);
    ASSERT_GE(wanted, 0) << qUtf8Printable(text);
    QTest::keyClick(&types, Qt::Key_Home);
    for (int i = 0; i < wanted; ++i) QTest::keyClick(&types, Qt::Key_Down);
    ASSERT_EQ(types.currentIndex(), wanted);
    WaitUntilJudged();
}

QString ListTest::Write(const QString& name, const QByteArray& content) const {
    QFile file(folder.filePath(name));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    EXPECT_EQ(file.write(content), content.size());
    return file.fileName();
}

QByteArray ListTest::Read(const QString& name) const {
    QFile file(folder.filePath(name));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << qUtf8Printable(name);
    return file.readAll();
}

namespace {

TEST_F(ListTest, BeginsEmptyAndSaysWhatToDo) {
    StartList();
    EXPECT_TRUE(Named<QLabel>("hint").isVisible());
    EXPECT_EQ(Tally(), "0 rows: 0 made, 0 with warnings, 0 refused");
    for (const char* const name : {"copy", "export", "print", "clear", "header"})
        EXPECT_FALSE(Named<QAbstractButton>(name).isEnabled()) << name;
}

TEST_F(ListTest, EachRowThatIsPastedSaysWhatBecameOfIt) {
    StartList();
    Paste("4006381333931\r\n4006381333932\r\n40O6\r\n");
    EXPECT_EQ(Shown(0, 0), "Made");
    EXPECT_EQ(Shown(1, 0), "Warning: the check digit 2 was replaced by the computed one, 1");
    EXPECT_EQ(Shown(2, 0), "Refused: Only the digits 0 to 9");
    EXPECT_EQ(Tally(), "3 rows: 2 made, 1 with warnings, 1 refused");
    EXPECT_FALSE(Named<QLabel>("hint").isVisible());
    // A state is never told by an icon or a colour alone.
    for (int row = 0; row < 3; ++row) {
        const QModelIndex state = Rows().model()->index(row, 0);
        EXPECT_FALSE(state.data(Qt::DecorationRole).value<QIcon>().isNull()) << row;
        EXPECT_FALSE(state.data(Qt::ForegroundRole).isValid()) << row;
    }
}

TEST_F(ListTest, CellsOfASpreadsheetKeepTheirColumnsAndLoseTheirQuotes) {
    StartList();
    Paste("Shelf 1\t4006381333931\n\"a\tb\n\"\"c\"\"\"\t12\n");
    EXPECT_EQ(Page().Model().Rows(), 2U);
    EXPECT_EQ(Shown(1, 1), "a\tb\n\"c\"");
    EXPECT_EQ(Shown(0, 0), "Refused: Only the digits 0 to 9");
    QTest::keyClick(&Named<QComboBox>("dataColumn"), Qt::Key_End);
    WaitUntilJudged();
    EXPECT_EQ(Shown(0, 0), "Made");
    EXPECT_EQ(Named<QComboBox>("dataColumn").currentText(), "Column B");
}

TEST_F(ListTest, PastingTwiceAddsRows) {
    StartList();
    Paste("1\n2\n");
    Paste("3\tx\n");
    EXPECT_EQ(Page().Model().Rows(), 3U);
    EXPECT_EQ(Shown(2, 2), "x");
    EXPECT_EQ(Shown(0, 2), "");
    QApplication::clipboard()->setText("");
    Click("paste");
    EXPECT_EQ(Message(), "There is no text to paste.");
}

TEST_F(ListTest, ACellCanBeEditedAndItsRowFollows) {
    StartList();
    Paste("40O6381333931\n");
    EXPECT_EQ(Shown(0, 0), "Refused: Only the digits 0 to 9");
    Rows().setFocus();
    Rows().setCurrentIndex(Rows().model()->index(0, 1));
    QTest::keyClick(&Rows(), Qt::Key_F2);
    auto* const editor = qobject_cast<QLineEdit*>(QApplication::focusWidget());
    ASSERT_NE(editor, nullptr);
    QTest::keyClick(editor, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(editor, "4006381333931");
    QTest::keyClick(editor, Qt::Key_Return);
    WaitUntilJudged();
    EXPECT_EQ(Shown(0, 0), "Made");
    EXPECT_EQ(Tally(), "1 rows: 1 made, 0 with warnings, 0 refused");
}

TEST_F(ListTest, RowsCanBeDeletedAndAllCleared) {
    StartList();
    Paste("1\n2\n3\n4\n5\n");
    Rows().setFocus();
    for (const int row : {0, 2, 3})
        Rows().selectionModel()->select(Rows().model()->index(row, 1), QItemSelectionModel::Select);
    QTest::keyClick(&Rows(), Qt::Key_Delete);
    EXPECT_EQ(Page().Model().Rows(), 2U);
    EXPECT_EQ(Shown(0, 1), "2");
    EXPECT_EQ(Shown(1, 1), "5");
    DuringModal<QMessageBox>([this] { Click("clear"); },
                             [](QMessageBox& box) {
                                 EXPECT_EQ(box.text(), "The list has 2 rows. Remove all of them?");
                                 QTest::mouseClick(box.button(QMessageBox::Yes), Qt::LeftButton);
                             });
    EXPECT_EQ(Page().Model().Rows(), 0U);
    EXPECT_TRUE(Named<QLabel>("hint").isVisible());
    Paste("7\n");
    EXPECT_EQ(Shown(0, 1), "7");
}

TEST_F(ListTest, AColumnMaySayTheType) {
    StartList();
    Page().Open(Write("a.csv", "type;data\nean8;1234567\ncode128;Shelf\nfoo;1\n"));
    WaitUntilIdle();
    QTest::keyClick(&Named<QComboBox>("dataColumn"), Qt::Key_End);
    ChooseListType("in column type");
    EXPECT_EQ(Shown(0, 0), "Made");
    EXPECT_EQ(Shown(1, 0), "Made");
    EXPECT_TRUE(Shown(2, 0).startsWith("Refused: there is no type \"foo\""))
        << Shown(2, 0).toStdString();
    EXPECT_EQ(Page().Model().Rows(), 3U);
    Click("header");
    EXPECT_EQ(Page().Model().Rows(), 4U);
    EXPECT_EQ(Named<QComboBox>("dataColumn").currentText(), "Column B");
}

TEST_F(ListTest, NamesAreFoundAboveNumbers) {
    StartList();
    Page().Open(Write("a.csv", "place,number\nShelf,4006381333931\n"));
    WaitUntilIdle();
    EXPECT_TRUE(Named<QAbstractButton>("header").isChecked());
    EXPECT_EQ(Named<QComboBox>("dataColumn").itemText(1), "Column number");
    EXPECT_EQ(Page().Model().Rows(), 1U);
}

TEST_F(ListTest, AFileOfAnyEncodingIsReadAndOneThatCannotBeKnownIsAskedFor) {
    StartList();
    ChooseListType("Code 128");
    const QString text = QString::fromUtf8("Größe\nÄrger\n");
    QByteArray wide("\xFF\xFE");
    wide.append(reinterpret_cast<const char*>(text.utf16()), text.size() * 2);
    const std::pair<QByteArray, const char*> kinds[]{
        {text.toUtf8(), nullptr},
        {"\xEF\xBB\xBF" + text.toUtf8(), nullptr},
        {wide, nullptr},
        {"Gr\xF6\xDF\x65\n\xC4rger\n", "Windows-1252"},
        {"Gr\x9A\xA7\x65\n\x80rger\n", "Mac Roman"},
    };
    for (const auto& [content, encoding] : kinds) {
        bool isAsked = false;
        QTimer watch;
        QObject::connect(&watch, &QTimer::timeout, [&, name = encoding] {
            auto* const dialog = qobject_cast<QInputDialog*>(QApplication::activeModalWidget());
            if (!dialog || isAsked) return;
            isAsked = true;
            EXPECT_TRUE(dialog->labelText().contains("a.txt"));
            dialog->setTextValue(name);
            QTest::keyClick(dialog, Qt::Key_Return);
        });
        watch.start(20);
        Page().Open(Write("a.txt", content));
        EXPECT_TRUE(QTest::qWaitFor([&] { return isAsked == (encoding != nullptr); }, 5000));
        WaitUntilIdle();
        EXPECT_EQ(isAsked, encoding != nullptr);
        EXPECT_EQ(Shown(0, 1), QString::fromUtf8("Größe")) << (encoding ? encoding : "found");
        EXPECT_EQ(Shown(1, 1), QString::fromUtf8("Ärger"));
    }
}

TEST_F(ListTest, AFileThatCannotBeReadLeavesTheListAndSaysWhy) {
    StartList();
    Paste("1\n");
    const QString missing = folder.filePath("no.csv");
    QTimer watch;
    QString said;
    QObject::connect(&watch, &QTimer::timeout, [&] {
        auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (!box) return;
        said = box->text();
        QTest::keyClick(box, Qt::Key_Return);
    });
    watch.start(20);
    for (const QString& file : {missing, Write("b.csv", "\"never closed\n"), folder.path()}) {
        said.clear();
        Page().Open(file);
        EXPECT_TRUE(QTest::qWaitFor([&] { return !said.isEmpty(); }, 5000));
        EXPECT_TRUE(said.startsWith("This cannot be done: ")) << qUtf8Printable(said);
        EXPECT_TRUE(said.contains(file)) << qUtf8Printable(said);
        WaitUntilIdle();
        EXPECT_EQ(Shown(0, 1), "1");
    }
}

TEST_F(ListTest, CellsAndFilesCanBeDropped) {
    StartList();
    const auto drop = [this](QMimeData& dragged) {
        QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &dragged, Qt::LeftButton, {});
        QApplication::sendEvent(&Page(), &enter);
        EXPECT_TRUE(enter.isAccepted());
        QDropEvent event(QPointF(5, 5), Qt::CopyAction, &dragged, Qt::LeftButton, {});
        QApplication::sendEvent(&Page(), &event);
    };
    QMimeData cells;
    cells.setText("1\n2\n");
    drop(cells);
    WaitUntilJudged();
    EXPECT_EQ(Page().Model().Rows(), 2U);
    QMimeData file;
    file.setUrls({QUrl::fromLocalFile(Write("c.csv", "7\n8\n9\n"))});
    DuringModal<QMessageBox>([&] { drop(file); },
                             [](QMessageBox& box) {
                                 EXPECT_EQ(box.text(), "The list has 2 rows. Replace them?");
                                 QTest::mouseClick(box.button(QMessageBox::Yes), Qt::LeftButton);
                             });
    WaitUntilIdle();
    EXPECT_EQ(Page().Model().Rows(), 3U);
    EXPECT_EQ(Shown(2, 1), "9");
}

TEST_F(ListTest, ASequenceKeepsItsZerosAndWhatStandsAroundIt) {
    StartList();
    ChooseListType("Code 128");
    DuringModal<SequenceDialog>(
        [this] { Click("sequence"); },
        [](SequenceDialog& dialog) {
            const auto type = [&](const char* name, const QString& text) {
                auto* const field = dialog.findChild<QWidget*>(QLatin1String(name));
                ASSERT_NE(field, nullptr);
                field->setFocus();
                QTest::keyClick(field, Qt::Key_A, Qt::ControlModifier);
                QTest::keyClicks(field, text);
            };
            auto& preview = *dialog.findChild<QLabel*>("preview");
            auto& fine = *dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok);
            type("prefix", "A-");
            type("first", "000100");
            type("count", "200");
            EXPECT_EQ(preview.text(), QString::fromUtf8("A-000100 … A-000299"));
            type("suffix", "/7");
            EXPECT_EQ(preview.text(), QString::fromUtf8("A-000100/7 … A-000299/7"));
            EXPECT_TRUE(fine.isEnabled());
            type("first", "999900");
            EXPECT_EQ(
                preview.text(),
                "The last number would be 1000099 and have more digits than the first; zeros in "
                "front of the first make room.");
            EXPECT_FALSE(fine.isEnabled());
            type("first", "1x");
            EXPECT_TRUE(preview.text().startsWith("The first number has 1 to 18 digits"));
            EXPECT_FALSE(fine.isEnabled());
            type("first", "000100");
            type("step", "-1");
            EXPECT_EQ(preview.text(), "The last number would be -99; numbers end at zero.");
            EXPECT_FALSE(fine.isEnabled());
            type("step", "1");
            QTest::keyClick(&dialog, Qt::Key_Return);
        });
    WaitUntilJudged();
    EXPECT_EQ(Page().Model().Rows(), 200U);
    EXPECT_EQ(Shown(0, 1), "A-000100/7");
    EXPECT_EQ(Shown(199, 1), "A-000299/7");
    EXPECT_EQ(Shown(199, 0), "Made");
}

TEST_F(ListTest, ProblemsCanBeShownAlone) {
    StartList();
    Paste("4006381333931\n4006381333932\n40O6\n");
    Click("problems");
    EXPECT_EQ(Rows().model()->rowCount(), 2);
    EXPECT_TRUE(Shown(0, 0).startsWith("Warning"));
    EXPECT_TRUE(Shown(1, 0).startsWith("Refused"));
    Click("problems");
    EXPECT_EQ(Rows().model()->rowCount(), 3);
}

TEST_F(ListTest, TheFontTextsOfAllRowsAreCopiedOneALine) {
    StartList();
    Paste("400638133393\n40O6\n4006381333931\n");
    Click("copy");
    EXPECT_EQ(QApplication::clipboard()->text(), "Y(0A63IB*NNNTNL(\n\nY(0A63IB*NNNTNL(\n");
    EXPECT_EQ(Message(), "2 font texts copied, one a line; 1 refused rows have an empty line.");
}

TEST_F(ListTest, TypesHaveTheirOptions) {
    StartList();
    Paste("A\n");
    EXPECT_FALSE(Named<QComboBox>("ratio").isEnabled());
    ChooseListType("Code 39");
    EXPECT_TRUE(Named<QAbstractButton>("checkDigit").isChecked());
    Click("copy");
    const QString checked = QApplication::clipboard()->text();
    Click("checkDigit");
    WaitUntilJudged();
    Click("copy");
    EXPECT_LT(QApplication::clipboard()->text().size(), checked.size());
    QTest::keyClick(&Named<QComboBox>("ratio"), Qt::Key_End);
    WaitUntilJudged();
    Click("copy");
    EXPECT_NE(QApplication::clipboard()->text(), checked);
    // What was unticked stays so when rows come and when another language is chosen.
    Paste("B\n");
    workbench->SwitchLanguage("deDE");
    WaitUntilJudged();
    EXPECT_FALSE(Named<QAbstractButton>("checkDigit").isChecked());
    EXPECT_EQ(Named<QComboBox>("type").currentText(), "Code 39");
}

TEST_F(ListTest, FollowsThePreferencesAndIsLeftAloneWhereTheyAreTheSame) {
    StartList();
    ChooseListType("Code 39 (Classic)");
    Paste("ABC\n");
    Click("copy");
    const QString before = QApplication::clipboard()->text();
    int changes = 0;
    QObject::connect(&Page().Model(), &QAbstractItemModel::dataChanged, [&] { ++changes; });
    Page().Refresh();
    QTest::qWait(20);
    EXPECT_EQ(changes, 0);
    UsePreferences([](DialogWindow& dialog) {
        QTest::keyClick(&At<QComboBox>(dialog, kCode39Check), Qt::Key_Home);
        QTest::keyClick(&dialog, Qt::Key_Return);
    });
    workbench->Window().activateWindow();
    EXPECT_TRUE(QTest::qWaitFor([&] { return changes > 0; }));
    WaitUntilJudged();
    Click("copy");
    EXPECT_EQ(QApplication::clipboard()->text().size(), before.size() - 1);
}

TEST_F(ListTest, FollowsTheLanguageWithItsRows) {
    StartList();
    Paste("40O6\n4006381333931\n");
    workbench->SwitchLanguage("deDE");
    WaitUntilJudged();
    EXPECT_EQ(Shown(0, 1), "40O6");
    EXPECT_TRUE(Shown(0, 0).startsWith("Abgelehnt: ")) << Shown(0, 0).toStdString();
    EXPECT_EQ(Tally(), "2 Zeilen: 1 erzeugt, 0 mit Warnung, 1 abgelehnt");
}

TEST_F(ListTest, CellsThatArePastedIntoAnotherPageComeHere) {
    StartList();
    EXPECT_TRUE(Page().TakeCells("1\t2\n3\t4\n"));
    WaitUntilJudged();
    EXPECT_EQ(Page().Model().Rows(), 2U);
}

TEST_F(ListTest, AHundredThousandRowsAreAskedForOnceHoweverTheyAreScrolled) {
    StartList();
    QByteArray cells;
    for (int i = 0; i < 100000; ++i) cells += QByteArray::number(100000000000 + i) + '\n';
    QApplication::clipboard()->setText(QString::fromLatin1(cells));
    int resets = 0;
    const auto* const model = &Page().Model();
    QObject::connect(model, &QAbstractItemModel::modelReset, [&] { ++resets; });
    Click("paste");
    // What is shown does not wait for what is above it.
    QTest::qWait(0);
    Rows().scrollToBottom();
    EXPECT_TRUE(QTest::qWaitFor([&] { return Shown(99999, 0) != QString::fromUtf8("…"); }, 5000));
    WaitUntilJudged();
    EXPECT_EQ(resets, 1);
    int changes = 0;
    QObject::connect(model, &QAbstractItemModel::dataChanged, [&] { ++changes; });
    for (int at = 0; at < Rows().verticalScrollBar()->maximum(); at += 500) {
        Rows().verticalScrollBar()->setValue(at);
        QApplication::processEvents();
    }
    EXPECT_EQ(changes, 0);
    EXPECT_EQ(Tally(), "100000 rows: 100000 made, 0 with warnings, 0 refused");
}

}  // namespace

}  // namespace linewright
