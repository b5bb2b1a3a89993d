#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QGlyphRun>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QSet>
#include <QStyleOption>
#include <QStylePainter>
#include <QTest>
#include <QTextLayout>

#include "tests/workbench/WorkbenchTest.h"

namespace linewright {

namespace {

/** How many glyphs of a text are the box that stands for a missing one. */
qsizetype CountMissingGlyphs(const QString& text, const QFont& font) {
    QTextLayout layout(text, font);
    layout.beginLayout();
    layout.createLine();
    layout.endLayout();
    qsizetype missing = 0;
    for (const QGlyphRun& run : layout.glyphRuns()) missing += run.glyphIndexes().count(0);
    return missing;
}

/** The letter behind a single "&"; none where there is none. */
QChar MnemonicOf(const QString& text) {
    const auto sign = text.indexOf('&');
    return sign < 0 ? QChar() : text.at(sign + 1).toLower();
}

int WidthOf(const QWidget& view, const QString& text) {
    // A frame's title ends with its ink, such as before the blank half of a wide bracket.
    if (qobject_cast<const QGroupBox*>(&view)) return view.fontMetrics().boundingRect(text).width();
    return view.fontMetrics().size(Qt::TextShowMnemonic, text).width();
}

/** Style options are set up by a protected function of each kind of widget. */
template <class View, class Option>
struct Styled : View {
    static Option OptionOf(const View& view) {
        Option option;
        (view.*&Styled::initStyleOption)(&option);
        return option;
    }
};

/** A text of a widget, and the room that the widget has for it. */
struct Shown {
    QString text;
    QSize room;
};

std::vector<Shown> TextsOf(const QWidget& view) {
    const QStyle& style = *view.style();
    if (const auto* label = qobject_cast<const QLabel*>(&view))
        return {{label->text(), label->contentsRect().size()}};
    if (const auto* box = qobject_cast<const QCheckBox*>(&view)) {
        const auto option = Styled<QCheckBox, QStyleOptionButton>::OptionOf(*box);
        const QRect room = style.subElementRect(QStyle::SE_CheckBoxContents, &option, box);
        return {{box->text(), room.intersected(box->rect()).size()}};
    }
    if (const auto* button = qobject_cast<const QPushButton*>(&view)) {
        const auto option = Styled<QPushButton, QStyleOptionButton>::OptionOf(*button);
        return {{button->text(),
                 style.subElementRect(QStyle::SE_PushButtonContents, &option, button).size()}};
    }
    if (const auto* frame = qobject_cast<const QGroupBox*>(&view)) {
        const auto option = Styled<QGroupBox, QStyleOptionGroupBox>::OptionOf(*frame);
        const QRect room =
            style.subControlRect(QStyle::CC_GroupBox, &option, QStyle::SC_GroupBoxLabel, frame);
        return {{frame->title(), room.intersected(frame->rect()).size()}};
    }
    if (const auto* popUp = qobject_cast<const QComboBox*>(&view)) {
        const auto option = Styled<QComboBox, QStyleOptionComboBox>::OptionOf(*popUp);
        const QSize room =
            style.subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, popUp)
                .size();
        std::vector<Shown> texts;
        texts.reserve(static_cast<std::size_t>(popUp->count()));
        for (int i = 0; i < popUp->count(); ++i) texts.push_back({popUp->itemText(i), room});
        return texts;
    }
    return {};
}

void ExpectReadable(const QWidget& view) {
    for (const auto& [text, room] : TextsOf(view)) {
        SCOPED_TRACE(qUtf8Printable(text));
        EXPECT_LE(WidthOf(view, text), room.width());
        EXPECT_LE(view.fontMetrics().height(), room.height());
        EXPECT_EQ(CountMissingGlyphs(text, view.font()), 0);
    }
}

class LayoutTest : public WorkbenchTest, public testing::WithParamInterface<const char*> {
  protected:
    QString Locale() const { return QString::fromLatin1(GetParam()); }

    void SavePicture(QWidget& window, const QString& name) const {
        const QDir pictures(LINEWRIGHT_PICTURES);
        ASSERT_TRUE(pictures.mkpath("."));
        // The picture is of a window at rest.
        QTest::qWait(50);
        const QString file = pictures.filePath(name + '-' + Locale() + ".png");
        EXPECT_TRUE(window.grab().save(file)) << qUtf8Printable(file);
    }

    static void ExpectWellLaidOut(const DialogWindow& dialog) {
        QSet<QChar> mnemonics;
        for (const QWidget* const view : dialog.findChildren<QWidget*>()) {
            if (!view->isVisible()) continue;
            ExpectReadable(*view);
            EXPECT_TRUE(dialog.rect().contains(QRect(view->mapTo(&dialog, QPoint()), view->size())))
                << view->metaObject()->className();
        }
        const std::vector<QWidget*> views = dialog.Views();
        for (std::size_t i = 0; i < views.size(); ++i) {
            const auto rectOf = [&](const QWidget* view) {
                return QRect(view->mapTo(&dialog, QPoint()), view->size());
            };
            for (std::size_t k = 0; k < i; ++k)
                EXPECT_FALSE(rectOf(views[i]).intersects(rectOf(views[k]))) << i << " and " << k;
            if (qobject_cast<QLabel*>(views[i])) {
                EXPECT_EQ(static_cast<QLabel*>(views[i])->buddy(), views[i + 1]);
            } else {
                EXPECT_FALSE(views[i]->accessibleName().isEmpty());
                EXPECT_FALSE(views[i]->accessibleName().contains('&'));
                EXPECT_FALSE(views[i]->accessibleName().endsWith(':'));
                EXPECT_NE(views[i]->focusPolicy() & Qt::TabFocus, 0);
            }
        }
    }

    /** No two of the dialog have one mnemonic, and all but the plain buttons have one. */
    static void ExpectMnemonics(const DialogWindow& dialog) {
        QSet<QChar> seen;
        for (const QWidget* const view : dialog.Views()) {
            const auto* const label = qobject_cast<const QLabel*>(view);
            const auto* const button = qobject_cast<const QAbstractButton*>(view);
            const QChar mnemonic = MnemonicOf(label    ? label->text()
                                              : button ? button->text()
                                                       : QString());
            const bool isPlain = view == dialog.FindView(kOKButton) ||
                                 view == dialog.FindView(kCancelButton) || (!label && !button);
            EXPECT_TRUE(isPlain || !mnemonic.isNull());
            if (mnemonic.isNull()) continue;
            EXPECT_FALSE(seen.contains(mnemonic)) << qUtf8Printable(QString(mnemonic));
            seen.insert(mnemonic);
        }
    }
};

INSTANTIATE_TEST_SUITE_P(Locales, LayoutTest, testing::Values("enUS", "deDE", "frFR", "jaJP"),
                         [](const auto& locale) { return std::string(locale.param); });

TEST(GlyphTest, AMissingGlyphIsNoticed) {
    EXPECT_EQ(CountMissingGlyphs(QString(QChar(0xF8FE)), QApplication::font()), 1);
    EXPECT_EQ(CountMissingGlyphs("A", QApplication::font()), 0);
}

TEST_P(LayoutTest, TheUtilityDialog) {
    Start(Locale());
    DialogWindow& dialog = OpenUtility();
    ExpectWellLaidOut(dialog);
    ExpectMnemonics(dialog);
    auto& types = At<QComboBox>(dialog, kType);
    auto& description = At<QPlainTextEdit>(dialog, kDescription);
    for (int i = 0; i < types.count(); ++i) {
        if (i > 0) QTest::keyClick(&types, Qt::Key_Down);
        SCOPED_TRACE(qUtf8Printable(types.currentText()));
        EXPECT_EQ(CountMissingGlyphs(description.toPlainText(), description.font()), 0);
        EXPECT_EQ(description.horizontalScrollBar()->maximum(), 0);
        EXPECT_EQ(description.verticalScrollBar()->value(), 0);
        ExpectWellLaidOut(dialog);
    }
    const int ean13 = 19;
    QTest::keyClick(&types, Qt::Key_Home);
    for (int i = 0; i < ean13; ++i) QTest::keyClick(&types, Qt::Key_Down);
    EXPECT_EQ(types.currentText(), "EAN-13");
    TypeData(dialog, "400638133393");
    QTest::keyClick(&At<QLineEdit>(dialog, kData), Qt::Key_Return);
    SavePicture(dialog, "utility");
}

TEST_P(LayoutTest, ThePreferences) {
    Start(Locale());
    UsePreferences([this](DialogWindow& dialog) {
        ExpectWellLaidOut(dialog);
        ExpectMnemonics(dialog);
        SavePicture(dialog, "preferences");
        QTest::keyClick(&dialog, Qt::Key_Escape);
    });
}

TEST_P(LayoutTest, TheMainWindow) {
    Start(Locale());
    MainWindow& window = workbench->Window();
    const QWidget& page = *window.centralWidget();
    QSet<QChar> seen;
    for (const QWidget* const view : page.findChildren<QWidget*>()) {
        if (!view->isVisible()) continue;
        ExpectReadable(*view);
        const auto* const label = qobject_cast<const QLabel*>(view);
        const auto* const button = qobject_cast<const QAbstractButton*>(view);
        const QString text = label ? label->text() : button ? button->text() : QString();
        const QChar mnemonic = MnemonicOf(text);
        if (mnemonic.isNull()) continue;
        EXPECT_FALSE(seen.contains(mnemonic)) << qUtf8Printable(text);
        seen.insert(mnemonic);
    }
    EXPECT_EQ(seen.size(), 7);
    for (const QAction* const menu : window.menuBar()->actions()) {
        EXPECT_EQ(CountMissingGlyphs(menu->text(), window.menuBar()->font()), 0);
        const QChar mnemonic = MnemonicOf(menu->text());
        EXPECT_FALSE(mnemonic.isNull());
        EXPECT_FALSE(seen.contains(mnemonic)) << qUtf8Printable(menu->text());
        seen.insert(mnemonic);
        for (const QAction* const item : menu->menu()->actions())
            EXPECT_EQ(CountMissingGlyphs(item->text(), menu->menu()->font()), 0);
    }
    SavePicture(window, "window");
}

}  // namespace

}  // namespace linewright
