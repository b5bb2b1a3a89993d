#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QTemporaryDir>
#include <functional>
#include <optional>
#include <stdexcept>
#include <string>

#include "tests/WidgetIDs.h"
#include "workbench/DialogWindow.h"
#include "workbench/Workbench.h"

namespace linewright {

/** The view of a widget as what it is. */
template <class View>
View& At(const DialogWindow& dialog, WidgetID id) {
    auto* const view = dynamic_cast<View*>(dialog.FindView(id));
    if (!view) throw std::invalid_argument("no such widget: " + std::to_string(id));
    return *view;
}

/** The program on a screen that nobody sees, with folders of its own. Keys and clicks go the way
 *  that the user's go. */
class WorkbenchTest : public testing::Test {
  protected:
    ~WorkbenchTest() override;

    /** Starts the program, or starts it again. */
    void Start(const QString& locale = QStringLiteral("enUS"));

    /** Clicks an entry of a menu of the main window, by their places. */
    void ClickMenu(int menu, int entry);
    DialogWindow& OpenUtility();
    /** Opens the preferences from the menu, and has them used; they must be closed then. */
    void UsePreferences(const std::function<void(DialogWindow&)>& use);

    /** Does something that opens a modal window, which `use` is given and has to close. */
    template <class Window>
    static void DuringModal(const std::function<void()>& open,
                            const std::function<void(Window&)>& use) {
        bool isUsed = false;
        UseNextModal([&](QWidget& widget) {
            isUsed = true;
            auto* const window = dynamic_cast<Window*>(&widget);
            ASSERT_NE(window, nullptr);
            use(*window);
        });
        open();
        EXPECT_TRUE(isUsed) << "no modal window was opened";
    }

    QTemporaryDir folder;
    int beeps = 0;
    std::optional<Workbench> workbench;

  private:
    static void UseNextModal(const std::function<void(QWidget&)>& use);
};

/** Chooses a type by its text. */
void ChooseType(const DialogWindow& dialog, const QString& text);
/** Empties the data field and types into it. */
void TypeData(const DialogWindow& dialog, const QString& text);

}  // namespace linewright
