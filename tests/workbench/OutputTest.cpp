#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QMessageBox>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QProcess>
#include <QSpinBox>
#include <QStatusBar>
#include <QTest>

#include <sys/resource.h>

#include "tests/workbench/PageFixture.h"
#include "types/BarcodeTypes.h"
#include "workbench/CommandDialog.h"
#include "workbench/ExportDialog.h"
#include "workbench/ShellLine.h"

namespace linewright {

namespace {

QByteArray ContentOf(const QString& name) {
    QFile file(name);
    if (!file.open(QIODevice::ReadOnly)) ADD_FAILURE() << qUtf8Printable(name);
    return file.readAll();
}

class OutputTest : public PageFixture {
  protected:
    template <class View>
    static View& In(const QDialog& dialog, const char* name) {
        return *dialog.findChild<View*>(QLatin1String(name));
    }

    /** Opens the dialog for files and has it used; it is closed afterwards. */
    void Export(const std::function<void(ExportDialog&)>& use) {
        DuringModal<ExportDialog>(
            [this] { QTest::mouseClick(&Named<QPushButton>("export"), Qt::LeftButton); },
            [&](ExportDialog& dialog) {
                use(dialog);
                if (dialog.isVisible()) QTest::keyClick(&dialog, Qt::Key_Escape);
            });
    }
    /** Chooses a format, types a name and presses Return; what is said then, "" where it is
     *  written. */
    QString ExportTo(const QString& format, const QString& name) {
        QString reason;
        Export([&](ExportDialog& dialog) {
            In<QComboBox>(dialog, "format").setCurrentText(format);
            auto& box = In<QLineEdit>(dialog, "file");
            box.selectAll();
            QTest::keyClicks(&box, name);
            QTest::keyClick(&box, Qt::Key_Return);
            reason = In<QLabel>(dialog, "reason").text();
        });
        return reason;
    }
    QString InFolder(const char* name) { return folder.filePath(QLatin1String(name)); }
    QStringList Files() { return QDir(folder.path()).entryList(QDir::Files | QDir::Hidden); }
};

TEST_F(OutputTest, CopiesPicturesInThreeFormats) {
    Start();
    const std::tuple<const char*, const char*, QByteArray> rows[]{
        {"copySvg", "image/svg+xml", "<svg"},
        {"copyPdf", "application/pdf", "%PDF-"},
        {"copyPng", "image/png", "\x89PNG"},
    };
    for (const auto& [name, type, beginning] : rows) {
        Action(name).trigger();
        const QMimeData* const data = QApplication::clipboard()->mimeData();
        EXPECT_TRUE(data->data(QLatin1String(type)).contains(beginning)) << name;
    }
    EXPECT_FALSE(QApplication::clipboard()->image().isNull());
}

TEST_F(OutputTest, KeysCopyAndTheStatusLineSaysSo) {
    Start();
    Enter("Code 128", "KEYS");
    QApplication::clipboard()->clear();
    QTest::keyClick(&workbench->Window(), Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_FALSE(QApplication::clipboard()->text().isEmpty());
    EXPECT_EQ(workbench->Window().statusBar()->currentMessage(),
              "The font text is copied: set it in Linewright Bars.");
    QTest::keyClick(&workbench->Window(), Qt::Key_G, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(workbench->Window().statusBar()->currentMessage(), "The barcode is copied as PNG.");
}

TEST_F(OutputTest, WritesFiveFormats) {
    Start();
    const std::pair<const char*, QByteArray> rows[]{{"PDF", "%PDF-"},
                                                    {"EPS", "%!PS-Adobe-"},
                                                    {"SVG", "<svg"},
                                                    {"PNG", "\x89PNG"},
                                                    {"TIFF", "II"}};
    for (const auto& [format, beginning] : rows) {
        const QString ending = QString(QLatin1String(format)).toLower();
        EXPECT_EQ(ExportTo(QLatin1String(format), InFolder("b")), "");
        EXPECT_TRUE(ContentOf(InFolder("b.") + ending).left(200).contains(beginning)) << format;
    }
    const QImage picture(InFolder("b.png"));
    // Whole pixels: nothing is grey along the bars.
    for (int x = 0; x < picture.width(); ++x) {
        const int grey = qGray(picture.pixel(x, picture.height() / 3));
        EXPECT_TRUE(grey == 0 || grey == 255) << x;
    }
}

TEST_F(OutputTest, TheFormatDecidesTheEnding) {
    Start();
    EXPECT_EQ(ExportTo("PDF", InFolder("Label v1.2")), "");
    EXPECT_TRUE(ContentOf(InFolder("Label v1.2.pdf")).startsWith("%PDF-"));
    EXPECT_EQ(ExportTo("PDF", InFolder("c.PDF")), "");
    EXPECT_TRUE(ContentOf(InFolder("c.PDF")).startsWith("%PDF-"));
    EXPECT_EQ(ExportTo("PDF", InFolder("a.jpg")),
              "The name ends in .jpg, but a file of this format ends in .pdf.");
    EXPECT_EQ(ExportTo("PDF", InFolder("a.eps")),
              "The name ends in .eps, but a file of this format ends in .pdf.");
    EXPECT_EQ(ExportTo("PDF", folder.path() + '/'), "The file has no name.");
    EXPECT_EQ(Files().filter("a."), QStringList());
}

TEST_F(OutputTest, ProposesANameAndRemembersFolderAndFormat) {
    Start();
    Enter("Code 128", "A/B:C");
    EXPECT_EQ(ExportTo("SVG", InFolder("first")), "");
    Export([&](ExportDialog& dialog) {
        EXPECT_EQ(In<QLineEdit>(dialog, "file").text(), InFolder("code128-A_B_C.svg"));
        EXPECT_EQ(In<QComboBox>(dialog, "format").currentText(), "SVG");
        EXPECT_TRUE(In<QPushButton>(dialog, "save").isDefault());
        In<QComboBox>(dialog, "format").setCurrentText("PNG");
        EXPECT_EQ(In<QLineEdit>(dialog, "file").text(), InFolder("code128-A_B_C.png"));
        EXPECT_FALSE(In<QComboBox>(dialog, "ink").isEnabled());
        EXPECT_TRUE(In<QSpinBox>(dialog, "dots").isEnabled());
    });
}

TEST_F(OutputTest, AsksBeforeAFileIsReplaced) {
    Start();
    ASSERT_EQ(ExportTo("SVG", InFolder("there")), "");
    const QByteArray before = ContentOf(InFolder("there.svg"));
    Enter("Code 128", "OTHER");
    for (const auto answer : {QMessageBox::No, QMessageBox::Yes}) {
        Export([&](ExportDialog& dialog) {
            In<QLineEdit>(dialog, "file").setText(InFolder("there.svg"));
            DuringModal<QMessageBox>(
                [&] { QTest::keyClick(&In<QLineEdit>(dialog, "file"), Qt::Key_Return); },
                [&](QMessageBox& box) { QTest::mouseClick(box.button(answer), Qt::LeftButton); });
        });
        EXPECT_EQ(ContentOf(InFolder("there.svg")) == before, answer == QMessageBox::No);
    }
}

TEST_F(OutputTest, SaysWhyAFileCannotBeWritten) {
    Start();
    EXPECT_TRUE(ExportTo("PDF", InFolder("missing/b")).contains("could not be written"));
    ASSERT_TRUE(QFile::link("/dev/full", InFolder("full.pdf")));
    Export([&](ExportDialog& dialog) {
        In<QLineEdit>(dialog, "file").setText(InFolder("full.pdf"));
        DuringModal<QMessageBox>(
            [&] { QTest::keyClick(&In<QLineEdit>(dialog, "file"), Qt::Key_Return); },
            [](QMessageBox& box) {
                QTest::mouseClick(box.button(QMessageBox::Yes), Qt::LeftButton);
            });
        EXPECT_TRUE(In<QLabel>(dialog, "reason").text().contains("No space left"))
            << qUtf8Printable(In<QLabel>(dialog, "reason").text());
        EXPECT_TRUE(dialog.isVisible());
    });
    Export([&](ExportDialog& dialog) {
        In<QComboBox>(dialog, "format").setCurrentText("PDF");
        In<QComboBox>(dialog, "ink").setEditText("cmyk:1,2");
        In<QLineEdit>(dialog, "file").setText(InFolder("ink.pdf"));
        QTest::keyClick(&In<QLineEdit>(dialog, "file"), Qt::Key_Return);
        EXPECT_TRUE(In<QLabel>(dialog, "reason").text().contains("is no ink"));
    });
    EXPECT_EQ(Files().filter("draft"), QStringList());
    EXPECT_EQ(Files().filter("ink"), QStringList());
}

TEST_F(OutputTest, SaysSoWhereThereAreNoFileHandlesLeft) {
    Start();
    ASSERT_EQ(ExportTo("PDF", InFolder("warm")), "");
    rlimit before{};
    ASSERT_EQ(getrlimit(RLIMIT_NOFILE, &before), 0);
    rlimit few = before;
    few.rlim_cur = 3;
    QString reason;
    Export([&](ExportDialog& dialog) {
        In<QLineEdit>(dialog, "file").setText(InFolder("few.pdf"));
        ASSERT_EQ(setrlimit(RLIMIT_NOFILE, &few), 0);
        dialog.accept();
        ASSERT_EQ(setrlimit(RLIMIT_NOFILE, &before), 0);
        reason = In<QLabel>(dialog, "reason").text();
        EXPECT_TRUE(dialog.isVisible());
    });
    EXPECT_TRUE(reason.contains("could not be written")) << qUtf8Printable(reason);
    EXPECT_EQ(Files().filter("few"), QStringList());
    EXPECT_EQ(ExportTo("PDF", InFolder("few")), "");
}

TEST_F(OutputTest, TheCommandIsShownAndCopied) {
    Start();
    Enter("Code 128", "it's");
    DuringModal<CommandDialog>(
        [this] { Action("showCommand").trigger(); },
        [&](CommandDialog& dialog) {
            const QString line = In<QPlainTextEdit>(dialog, "line").toPlainText();
            EXPECT_TRUE(line.contains(" draw "));
            EXPECT_TRUE(line.endsWith("code128 'it'\\''s'")) << qUtf8Printable(line);
            QTest::keyClick(&dialog, Qt::Key_Return);
            EXPECT_EQ(QApplication::clipboard()->text(), line);
            QTest::keyClick(&dialog, Qt::Key_Escape);
        });
}

// The line is run by a shell, and what it writes is what the window writes.
TEST_F(OutputTest, TheCommandWritesTheSameBytes) {
    struct Row {
        const char* type;
        const char* data;
        DrawingWish drawing;
        ExportChoice choice;
    };
    const Row rows[]{
        {"EAN-13", "4006381333931", {}, {}},
        {"EAN-13 (Classic)", "400638133393", {.hasMarginMarks = true}, {}},
        {"Code 128", "it's \"$HOME\" `ls` \\n é~202", {.magnification = 123.4}, {}},
        {"Code 128", "-", {}, {.format = FileFormat::kSvg}},
        {"Code 128", "--help", {.xDimension = 0.333 * kMillimetre}, {.format = FileFormat::kEps}},
        {"Code 39",
         "FIX-42",
         {.height = Length{50, true}, .isTextWanted = false},
         {.format = FileFormat::kPng, .dotsPerInch = 600}},
        {"Interleaved 2 of 5",
         "123",
         {.dotsPerInch = 600, .isFitted = true, .hasBearerBars = true},
         {.format = FileFormat::kTiff, .isGrey = true}},
        {"MSI Plessey",
         "1234567",
         {.barWidthReduction = Length{0.1, true}},
         {.ink = "cmyk:10,20,30,40"}},
        {"USPS Intelligent Mail",
         "01234567094987654321",
         {.quietZone = Length{10}},
         {.ink = "Sea Blue"}},
    };
    Start();
    for (const Row& row : rows) {
        ChooseType(QLatin1String(row.type));
        auto& data = Named<QLineEdit>("data");
        data.setText(QString::fromUtf8(row.data));
        Page().Sizes().SetWish(row.drawing);
        const std::optional<TakenBarcode>& taken = Page().Shown();
        ASSERT_TRUE(taken.has_value()) << row.type << qUtf8Printable(Message());
        const QString name = InFolder("out.") + EndingOf(row.choice.format);
        const QString line = ShellLine(
            {QStringLiteral(LINEWRIGHT_COMMAND), "--config-dir", folder.path(), "--fonts",
             QStringLiteral(LINEWRIGHT_FONTS), "--plugin", QStringLiteral(LINEWRIGHT_PLUGIN)},
            *taken, row.choice, name);
        QProcess shell;
        shell.start("/bin/sh", {"-c", line});
        ASSERT_TRUE(shell.waitForFinished());
        ASSERT_EQ(shell.exitCode(), 0)
            << qUtf8Printable(line) << shell.readAllStandardError().constData();
        EXPECT_TRUE(ContentOf(name) == QByteArray::fromStdString(taken->Content(row.choice)))
            << qUtf8Printable(line);
        QFile::remove(name);
    }
}

TEST_F(OutputTest, TwentyRecentBarcodesAreKeptAndClearedOnRequest) {
    Start();
    ChooseType("Code 128");
    for (int i = 0; i < 22; ++i) {
        Named<QLineEdit>("data").setText(QString::number(1000 + i));
        Action("copyText").trigger();
    }
    Action("copyText").trigger();
    QMenu& menu = *Action("recent").menu();
    QMetaObject::invokeMethod(&menu, "aboutToShow");
    // A separator and the entry that clears follow.
    ASSERT_EQ(menu.actions().size(), 22);
    EXPECT_EQ(menu.actions().first()->text(), "code128  1021");
    EXPECT_EQ(menu.actions().at(19)->text(), "code128  1002");
    Enter("EAN-13", "4006381333931");
    menu.actions().at(19)->trigger();
    EXPECT_EQ(ChosenType(), "Code 128");
    EXPECT_EQ(Named<QLineEdit>("data").text(), "1002");
    EXPECT_EQ(Verdict(), "Scans");
    Action("clearRecent").trigger();
    QMetaObject::invokeMethod(&menu, "aboutToShow");
    EXPECT_EQ(menu.actions().size(), 2);
}

TEST_F(OutputTest, TwoWindowsAtOnceKeepEachOthersRecentBarcodes) {
    Start();
    Enter("Code 128", "HERE");
    Action("copyText").trigger();
    {
        QSettings other(folder.filePath("Workbench.ini"), QSettings::IniFormat);
        RecentBarcodes(other).Add({.type = "_QVT_BARCODE_CODE39_", .data = "THERE"});
    }
    TypeIn("HERE AGAIN");
    Action("copyText").trigger();
    QMenu& menu = *Action("recent").menu();
    QMetaObject::invokeMethod(&menu, "aboutToShow");
    QStringList texts;
    for (const QAction* const action : menu.actions().mid(0, 3)) texts << action->text();
    EXPECT_EQ(texts, QStringList({"code128  HERE AGAIN", "code39  THERE", "code128  HERE"}));
}

TEST_F(OutputTest, InstallsTheFonts) {
    qputenv("XDG_DATA_HOME", folder.path().toUtf8());
    Start();
    DuringModal<QMessageBox>([this] { Action("installFonts").trigger(); },
                             [](QMessageBox& box) {
                                 EXPECT_EQ(box.icon(), QMessageBox::Information);
                                 EXPECT_TRUE(box.text().startsWith("10 barcode fonts"))
                                     << qUtf8Printable(box.text());
                                 QTest::keyClick(&box, Qt::Key_Return);
                             });
    EXPECT_EQ(QDir(folder.filePath("fonts/linewright")).entryList({"*.ttf"}).size(), 10);
    Start("enUS", folder.path());
    DuringModal<QMessageBox>([this] { Action("installFonts").trigger(); },
                             [](QMessageBox& box) {
                                 EXPECT_EQ(box.icon(), QMessageBox::Critical);
                                 QTest::keyClick(&box, Qt::Key_Return);
                             });
    qunsetenv("XDG_DATA_HOME");
}

}  // namespace

}  // namespace linewright
