#include "tests/workbench/PageFixture.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QTabWidget>
#include <QTest>

#include "workbench/PagePhrases.h"

namespace linewright {

BarcodePage& PageFixture::Page() {
    auto* const tabs = workbench->Window().findChild<QTabWidget*>(QStringLiteral("pages"));
    return dynamic_cast<BarcodePage&>(*tabs->widget(0));
}

QAction& PageFixture::Action(const char* name) {
    auto* const action = workbench->Window().findChild<QAction*>(QLatin1String(name));
    if (action == nullptr) throw std::invalid_argument(name);
    return *action;
}

void PageFixture::ChooseType(const QString& name) {
    auto& list = Named<QTreeView>("types");
    const QAbstractItemModel& model = *list.model();
    QModelIndex found;
    for (int group = 0; group < model.rowCount(); ++group) {
        const QModelIndex parent = model.index(group, 0);
        for (int row = 0; row < model.rowCount(parent); ++row) {
            const QModelIndex index = model.index(row, 0, parent);
            if (index.data().toString() == name) found = index;
        }
    }
    ASSERT_TRUE(found.isValid()) << qUtf8Printable(name);
    list.scrollTo(found);
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, list.visualRect(found).center());
    ASSERT_EQ(ChosenType(), name);
}

void PageFixture::TypeIn(const QString& data) {
    auto& box = Named<QLineEdit>("data");
    box.setFocus();
    QTest::keyClick(&box, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(&box, Qt::Key_Delete);
    QTest::keyClicks(&box, data);
}

void PageFixture::Paste(const QString& text) {
    QApplication::clipboard()->setText(text);
    QTest::keyClick(&Named<QLineEdit>("data"), Qt::Key_V, Qt::ControlModifier);
}

QString PageFixture::Copied() {
    QTest::mouseClick(&Named<QPushButton>("copy"), Qt::LeftButton);
    return QApplication::clipboard()->text();
}

QString PageFixture::Verdict() {
    constexpr int kPatience = 20000;
    const auto isSaid = [this] {
        const QString words = Named<Badge>("badge").Words();
        for (const char* const locale : {"enUS", "deDE", "frFR", "jaJP"}) {
            if (words == Say(phrases::kChecking, QLatin1String(locale))) return false;
        }
        return true;
    };
    EXPECT_TRUE(QTest::qWaitFor(isSaid, kPatience)) << "scanners say nothing";
    return Named<Badge>("badge").Words();
}

}  // namespace linewright
