#pragma once

#include <QAbstractButton>
#include <QComboBox>
#include <QFile>
#include <QLabel>
#include <QTabWidget>
#include <QTest>

#include "tests/workbench/WorkbenchTest.h"
#include "workbench/ListPage.h"

namespace linewright {

/** The page for lists, by clicks and keys. */
class ListTest : public WorkbenchTest {
  protected:
    void StartList(const QString& locale = QStringLiteral("enUS")) {
        Start(locale);
        auto* const tabs = workbench->Window().findChild<QTabWidget*>(QStringLiteral("pages"));
        tabs->setCurrentIndex(tabs->count() - 1);
        ASSERT_TRUE(QTest::qWaitForWindowActive(&workbench->Window()));
    }
    ListPage& Page() {
        auto* const tabs = workbench->Window().findChild<QTabWidget*>(QStringLiteral("pages"));
        return dynamic_cast<ListPage&>(*tabs->widget(tabs->count() - 1));
    }
    template <class View>
    View& Named(const char* name) {
        auto* const view = Page().findChild<View*>(QLatin1String(name));
        if (!view) throw std::invalid_argument(name);
        return *view;
    }
    QTableView& Rows() { return Named<QTableView>("rows"); }
    void Click(const char* name) {
        QTest::mouseClick(&Named<QAbstractButton>(name), Qt::LeftButton);
    }
    /** What the table says in a cell; column 0 is the status. */
    QString Shown(int row, int column) {
        return Rows().model()->index(row, column).data().toString();
    }
    QString Message() { return Named<QLabel>("message").text(); }
    QString Tally() { return Named<QLabel>("tally").text(); }

    /** Pastes by the button, and waits until all rows are judged. */
    void Paste(const QString& text);
    void WaitUntilJudged();
    /** Waits until files are read or written. */
    void WaitUntilIdle();
    void ChooseListType(const QString& text);
    QString Write(const QString& name, const QByteArray& content) const;
    QByteArray Read(const QString& name) const;
};

}  // namespace linewright
