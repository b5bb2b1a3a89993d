#include <sys/resource.h>
#include <unistd.h>

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QImage>
#include <QInputDialog>
#include <QMessageBox>
#include <QPrintPreviewDialog>
#include <QPrinter>
#include <QProcess>

#include "host/runtime/Paths.h"
#include "scanners/Reading.h"
#include "tests/workbench/ListTest.h"

namespace linewright {

namespace {

class ListOutputTest : public ListTest {
  protected:
    /** Does something that ends with a message box, and gives its texts. */
    QString Told(const std::function<void()>& work) {
        QString text;
        QTimer watch;
        QObject::connect(&watch, &QTimer::timeout, [&] {
            auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            if (!box || !text.isEmpty()) return;
            text = box->text() + u'\n' + box->detailedText();
            box->accept();
        });
        watch.start(10);
        work();
        EXPECT_TRUE(QTest::qWaitFor([&] { return !text.isEmpty(); }, 60000));
        WaitUntilIdle();
        return text;
    }
    /** Triggers an entry of the export menu, and gives the file dialog a name. */
    void ExportTo(const char* action, const QString& file) {
        DuringModal<QFileDialog>([&] { Named<QAction>(action).trigger(); },
                                 [&](QFileDialog& dialog) {
                                     dialog.selectFile(file);
                                     dialog.findChild<QLineEdit*>()->setText(file);
                                     QTest::keyClick(&dialog, Qt::Key_Return);
                                 });
    }
    ListOutput& Output() { return Page().Output(); }
    QStringList Files(const QString& place) const {
        return QDir(place).entryList(QDir::Files | QDir::Hidden, QDir::Name);
    }
    QString NewFolder(const QString& name) {
        EXPECT_TRUE(QDir(folder.path()).mkdir(name));
        return folder.filePath(name);
    }
};

TEST_F(ListOutputTest, EachRowBecomesAFileOfItsOwnAndRefusedOnesAreTold) {
    StartList();
    ChooseListType("Code 128");
    Paste("A/B\nA/B\n" + QString(200, 'x') + "\n\u00E9 \u00FC\n../..\nCON\n");
    const std::pair<const char*, QByteArray> kFormats[]{{"svg", "<svg"},
                                                        {"pdf", "%PDF-"},
                                                        {"eps", "%!PS-Adobe"},
                                                        {"png", "\x89PNG"},
                                                        {"tiff", "II*"}};
    for (const auto& [format, beginning] : kFormats) {
        const QString place = NewFolder(format);
        Output().WriteFiles(place, format);
        WaitUntilIdle();
        const QStringList files = Files(place);
        ASSERT_EQ(files.size(), 6) << format;
        EXPECT_EQ(files[0], QStringLiteral("000001-A_B.") + format);
        EXPECT_EQ(files[1], QStringLiteral("000002-A_B.") + format);
        EXPECT_EQ(files[2], "000003-" + QString(80, 'x') + '.' + format);
        EXPECT_EQ(files[4], QStringLiteral("000005-.._...") + format);
        for (const QString& file : files)
            EXPECT_TRUE(Read(QLatin1String(format) + '/' + file).startsWith(beginning)) << format;
        EXPECT_EQ(Message(), "6 rows are done.");
    }
    ChooseListType("EAN-13");
    Paste("4006381333931\n");
    const QString place = NewFolder("refused");
    const QString told = Told([&] { Output().WriteFiles(place, "svg"); });
    EXPECT_EQ(Files(place), QStringList("000007-4006381333931.svg"));
    EXPECT_TRUE(told.contains("6 rows were refused and left out:")) << qUtf8Printable(told);
    EXPECT_TRUE(told.contains(QString::fromUtf8("Row 1, “A/B”: Only the digits 0 to 9")));
}

TEST_F(ListOutputTest, FilesThatAreThereAreReplacedOnlyAfterAQuestion) {
    StartList();
    Paste("4006381333931\n");
    const QString place = NewFolder("f");
    Write("f/000001-4006381333931.svg", "mine");
    QTimer watch;
    QString asked;
    QObject::connect(&watch, &QTimer::timeout, [&] {
        QWidget* const modal = QApplication::activeModalWidget();
        if (auto* const dialog = qobject_cast<QFileDialog*>(modal)) {
            dialog->findChild<QLineEdit*>()->setText(place);
            QTest::keyClick(dialog, Qt::Key_Return);
        } else if (auto* const box = qobject_cast<QMessageBox*>(modal)) {
            asked = box->text();
            QTest::mouseClick(box->button(QMessageBox::No), Qt::LeftButton);
        }
    });
    watch.start(20);
    Output().AskForFolder("svg");
    EXPECT_EQ(asked, "1 of the files are there already. Replace them?");
    EXPECT_EQ(Read("f/000001-4006381333931.svg"), "mine");
}

TEST_F(ListOutputTest, AProofHasAllRows) {
    StartList();
    Paste("4006381333931\n40O6\n");
    const QString told = Told([&] { ExportTo("proof", folder.filePath("p")); });
    EXPECT_TRUE(told.contains("1 rows were refused"));
    EXPECT_TRUE(Read("p.pdf").startsWith("%PDF-"));
    QProcess text;
    text.start("pdftotext", {"-layout", folder.filePath("p.pdf"), "-"});
    ASSERT_TRUE(text.waitForFinished());
    const QString said = QString::fromUtf8(text.readAllStandardOutput()).simplified();
    EXPECT_TRUE(said.contains("2 rows: 1 drawn (1 scan, 0 do not, 0 have no scanner), 1 refused"));
    EXPECT_TRUE(said.contains("refused Only the digits 0 to 9"));
    EXPECT_TRUE(said.contains("read scans: 4006381333931"));
}

TEST_F(ListOutputTest, TheTableIsWrittenWithItsResults) {
    StartList();
    Page().Open(Write("a.csv", "place,barcode\n\"A, B\",4006381333931\nC,4006381333932\nD,x\n"));
    WaitUntilIdle();
    if (!Named<QAbstractButton>("header").isChecked()) Click("header");
    QTest::keyClick(&Named<QComboBox>("dataColumn"), Qt::Key_End);
    WaitUntilJudged();
    const QString told = Told([&] { ExportTo("csv", folder.filePath("out.csv")); });
    EXPECT_TRUE(told.contains(QString::fromUtf8("Row 3, “x”: Only the digits 0 to 9")));
    EXPECT_EQ(Read("out.csv").toStdString(),
              "place,barcode,linewright-barcode,linewright-status,linewright-message,"
              "linewright-warning\n"
              "\"A, B\",4006381333931,Y(0A63IB*NNNTNL(,0,,\n"
              "C,4006381333932,Y(0A63IB*NNNTNL(,0,,\"the check digit 2 was replaced by the "
              "computed one, 1\"\n"
              "D,x,,-6301,Only the digits 0 to 9,\n");
}

TEST_F(ListOutputTest, LabelsAndDocumentsHaveTheRowsThatWereMade) {
    StartList();
    Paste("Shelf 1\t4006381333931\nShelf 2\t40O6\nShelf 3\t4012345678901\n");
    QTest::keyClick(&Named<QComboBox>("dataColumn"), Qt::Key_End);
    WaitUntilJudged();
    const std::pair<const char*, QByteArray> kinds[]{
        {"l.pdf", "%PDF-"}, {"l.idml", "PK"}, {"l.odt", "PK"}, {"l.fodt", "<?xml"}};
    for (const auto& [name, beginning] : kinds) {
        const QString told =
            Told([&] { Output().WriteLabels(folder.filePath(name), *FindLabelSheet("a4-3x8")); });
        EXPECT_TRUE(told.contains("1 rows were refused")) << qUtf8Printable(told);
        EXPECT_TRUE(Read(name).startsWith(beginning)) << name;
    }
    QProcess text;
    text.start("pdftotext", {"-layout", folder.filePath("l.pdf"), "-"});
    ASSERT_TRUE(text.waitForFinished());
    const QString said = QString::fromUtf8(text.readAllStandardOutput());
    EXPECT_TRUE(said.contains("Shelf 1") && said.contains("Shelf 3")) << qUtf8Printable(said);
    EXPECT_FALSE(said.contains("Shelf 2"));
    EXPECT_TRUE(Told([&] {
                    Output().WriteLabels(folder.filePath("l.doc"), *FindLabelSheet("a4-3x8"));
                }).contains("must end in .pdf, .idml, .odt or .fodt"));
}

TEST_F(ListOutputTest, NothingIsHalfWrittenWhenItIsCancelledOrTheWindowCloses) {
    StartList();
    QString cells;
    for (int i = 0; i < 3000; ++i) cells += QString::number(100000 + i) + '\n';
    Paste(cells);
    const QString place = NewFolder("files");
    Output().WriteFiles(place, "svg");
    EXPECT_FALSE(Named<QAbstractButton>("export").isEnabled());
    EXPECT_TRUE(QTest::qWaitFor([&] { return Files(place).size() > 20; }, 60000));
    Click("cancel");
    WaitUntilIdle();
    EXPECT_TRUE(Message().startsWith("Cancelled after ")) << qUtf8Printable(Message());
    const QStringList files = Files(place);
    EXPECT_LT(files.size(), 3000);
    for (const QString& file : files) {
        EXPECT_TRUE(file.endsWith(".svg")) << qUtf8Printable(file);
        EXPECT_TRUE(Read("files/" + file).trimmed().endsWith("</svg>")) << qUtf8Printable(file);
    }
    EXPECT_TRUE(Named<QAbstractButton>("export").isEnabled());

    const QString proofs = NewFolder("proofs");
    Output().WriteProof(proofs + "/p.pdf");
    QTest::qWait(200);
    Click("cancel");
    WaitUntilIdle();
    EXPECT_TRUE(Files(proofs).isEmpty());
    Output().WriteProof(proofs + "/p.pdf");
    QTest::qWait(200);
    workbench->Window().close();
    workbench.reset();
    EXPECT_TRUE(Files(proofs).isEmpty());
}

TEST_F(ListOutputTest, AnotherLanguageEndsARunCleanly) {
    StartList();
    QString cells;
    for (int i = 0; i < 3000; ++i) cells += QString::number(100000 + i) + '\n';
    Paste(cells);
    const QString proofs = NewFolder("proofs");
    Output().WriteProof(proofs + "/p.pdf");
    QTest::qWait(100);
    workbench->SwitchLanguage("frFR");
    WaitUntilIdle();
    EXPECT_TRUE(Files(proofs).isEmpty());
    EXPECT_EQ(Tally(),
              QString::fromUtf8("3000 lignes : 3000 créées, 3000 avec avertissement, 0 refusées"));
}

TEST_F(ListOutputTest, SaysWhyWhenAFileCannotBeWritten) {
    StartList();
    Paste("4006381333931\n4006381333931\n");
    const QString full = Told([&] { Output().WriteProof("/dev/full"); });
    EXPECT_TRUE(full.contains("/dev/full")) << qUtf8Printable(full);
    const QString missing = Told([&] { Output().WriteFiles(folder.filePath("no"), "svg"); });
    EXPECT_TRUE(missing.contains("no/000001-4006381333931.svg")) << qUtf8Printable(missing);
    const QString readOnly = Told([&] { Output().WriteCsv("/proc/a.csv"); });
    EXPECT_TRUE(readOnly.contains("/proc/a.csv")) << qUtf8Printable(readOnly);
    EXPECT_TRUE(readOnly.startsWith("This cannot be done: "));
    EXPECT_TRUE(Named<QAbstractButton>("export").isEnabled());
}

TEST_F(ListOutputTest, WithoutFileHandlesItSaysSoAndLeavesNothing) {
    StartList();
    Paste("4006381333931\n");
    const QString place = NewFolder("f");
    // The sanitizers ask the system about each kind of object that they meet for the first time,
    // for which they want file handles: all kinds are met before there are none.
    const auto usual = Output().sizes;
    Output().sizes = [] { return DrawingWish{.xDimension = 0.01}; };
    Told([&] { Output().WriteFiles(place, "svg"); });
    Output().sizes = usual;
    Told([&] { Output().WriteFiles(folder.filePath("no"), "svg"); });
    Output().WriteFiles(NewFolder("g"), "svg");
    WaitUntilIdle();

    rlimit before{};
    getrlimit(RLIMIT_NOFILE, &before);
    const rlimit few{.rlim_cur = 64, .rlim_max = before.rlim_max};
    std::vector<int> held;
    setrlimit(RLIMIT_NOFILE, &few);
    for (int handle = dup(0); handle >= 0; handle = dup(0)) held.push_back(handle);
    const QString told = Told([&] { Output().WriteFiles(place, "svg"); });
    for (const int handle : held) close(handle);
    setrlimit(RLIMIT_NOFILE, &before);
    EXPECT_TRUE(told.startsWith("This cannot be done: ")) << qUtf8Printable(told);
    EXPECT_TRUE(Files(place).isEmpty());
    Output().WriteFiles(place, "svg");
    WaitUntilIdle();
    EXPECT_EQ(Files(place).size(), 1);
}

/** What a PDF says. */
QString TextOf(const QString& file) {
    QProcess reader;
    reader.start("pdftotext", {"-layout", file, "-"});
    EXPECT_TRUE(reader.waitForFinished());
    return QString::fromUtf8(reader.readAllStandardOutput());
}

TEST_F(ListOutputTest, PrintsWhatThePreviewShowsAndListsWhatWasRefused) {
    StartList();
    Paste("4006381333931\n40O6\n4006381333931\n");
    const QString file = folder.filePath("printed.pdf");
    const QString small = folder.filePath("small.pdf");
    bool isShown = false;
    QTimer watch;
    QObject::connect(&watch, &QTimer::timeout, [&] {
        auto* const preview = qobject_cast<QPrintPreviewDialog*>(QApplication::activeModalWidget());
        if (!preview || isShown) return;
        isShown = true;
        const auto print = [&](const QString& name, QPageSize size) {
            QPrinter printer(QPrinter::HighResolution);
            printer.setOutputFormat(QPrinter::PdfFormat);
            printer.setOutputFileName(name);
            printer.setPageSize(size);
            Q_EMIT preview->paintRequested(&printer);
        };
        print(file, QPageSize(QPageSize::A4));
        print(small, QPageSize(QSizeF(110, 30), QPageSize::Millimeter));
        preview->reject();
    });
    watch.start(20);
    Click("print");
    EXPECT_TRUE(QTest::qWaitFor([&] { return isShown; }, 20000));
    WaitUntilIdle();

    const QString said = TextOf(file);
    EXPECT_TRUE(said.contains("1 rows were refused and left out:")) << qUtf8Printable(said);
    EXPECT_TRUE(said.contains("Only the digits 0 to 9"));
    EXPECT_EQ(said.count("4006381333931"), 2) << qUtf8Printable(said);
    QProcess painter;
    painter.start("pdftoppm",
                  {"-gray", "-r", "300", "-singlefile", "-png", file, folder.filePath("printed")});
    ASSERT_TRUE(painter.waitForFinished());
    const QImage page =
        QImage(folder.filePath("printed.png")).convertToFormat(QImage::Format_Grayscale8);
    ASSERT_FALSE(page.isNull());
    GreyRaster raster{.width = page.width() / 2, .height = page.height() / 4, .pixels = {}};
    for (int y = 0; y < raster.height; ++y)
        raster.pixels.insert(raster.pixels.end(), page.constScanLine(y),
                             page.constScanLine(y) + raster.width);
    EXPECT_EQ(ReadWithZxing(raster, {.symbology = Symbology::kEanUpc}).said, "4006381333931");
    // A page that is too small for one: it is not cut, but told of.
    EXPECT_TRUE(TextOf(small).contains("the barcode is larger than the page"));
}

TEST_F(ListOutputTest, PresetsAreStoredChosenAndRemoved) {
    Start();
    PresetChooser chooser(host::PathFromUtf8(folder.filePath("Presets").toStdString()), nullptr);
    DrawingWish wish{.magnification = 150};
    DrawingWish heard;
    chooser.sizes = [&] { return wish; };
    chooser.chosen = [&](const DrawingWish& chosen) { heard = chosen; };
    chooser.Speak("enUS");
    chooser.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&chooser));
    auto& box = *chooser.findChild<QComboBox*>("preset");
    auto& store = *chooser.findChild<QToolButton*>("storePreset");
    const auto storeAs = [&](const QString& name) {
        DuringModal<QInputDialog>([&] { QTest::mouseClick(&store, Qt::LeftButton); },
                                  [&](QInputDialog& dialog) {
                                      dialog.setTextValue(name);
                                      QTest::keyClick(&dialog, Qt::Key_Return);
                                  });
    };
    storeAs("Large");
    EXPECT_EQ(box.currentText(), "Large");
    EXPECT_EQ(Read("Presets/Large.toml"), "magnification = 150\n");
    QTest::keyClick(&box, Qt::Key_Home);
    EXPECT_FALSE(heard.magnification);
    QTest::keyClick(&box, Qt::Key_Down);
    EXPECT_EQ(heard.magnification, 150);
    Write("Presets/Large.toml", "magnification = 0\n");
    EXPECT_TRUE(Told([&] { chooser.Wish(); }).contains("Large.toml: line 1: magnification = 0"));
    EXPECT_EQ(box.currentIndex(), 0);
    EXPECT_TRUE(Told([&] { storeAs("a/b"); }).contains("\"a/b\" cannot be the name of a preset"));
    Write("Presets/Large.toml", "dpi = 300\n");
    QTest::keyClick(&box, Qt::Key_End);
    EXPECT_EQ(heard.dotsPerInch, 300);
    DuringModal<QMessageBox>(
        [&] { QTest::mouseClick(chooser.findChild<QToolButton*>("removePreset"), Qt::LeftButton); },
        [](QMessageBox& question) {
            QTest::mouseClick(question.button(QMessageBox::Yes), Qt::LeftButton);
        });
    EXPECT_EQ(box.count(), 1);
    EXPECT_FALSE(QFile::exists(folder.filePath("Presets/Large.toml")));
}

}  // namespace

}  // namespace linewright
