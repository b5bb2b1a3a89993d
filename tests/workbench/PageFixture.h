#pragma once

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTreeView>

#include "tests/workbench/WorkbenchTest.h"
#include "workbench/Badge.h"
#include "workbench/BarcodePage.h"

namespace linewright {

/** The page for one barcode, used by keys and clicks. */
class PageFixture : public WorkbenchTest {
  protected:
    BarcodePage& Page();
    /** A widget of the page as what it is. */
    template <class View>
    View& Named(const char* name) {
        for (QWidget* const widget : Page().findChildren<QWidget*>(QLatin1String(name))) {
            if (auto* const view = dynamic_cast<View*>(widget)) return *view;
        }
        throw std::invalid_argument(name);
    }
    /** An action of the menus. */
    QAction& Action(const char* name);

    /** Clicks a type in the list. */
    void ChooseType(const QString& name);
    /** Empties the data and types into it. */
    void TypeIn(const QString& data);
    void Enter(const QString& type, const QString& data) {
        ChooseType(type);
        TypeIn(data);
    }
    void Paste(const QString& text);
    QString ChosenType() { return Named<QLabel>("heading").text(); }
    QString Message() { return Named<QLabel>("message").text(); }
    QString Copied();
    const std::optional<BarcodeDrawing>& Drawing() { return Named<DrawingArea>("area").Drawing(); }
    /** What the badge says when scanners have said what they read. */
    QString Verdict();
    Tone VerdictTone() { return Named<Badge>("badge").ShownTone(); }
};

}  // namespace linewright
