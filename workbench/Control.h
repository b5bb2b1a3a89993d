#pragma once

#include <QWidget>
#include <functional>
#include <memory>

#include "host/runtime/ShownDialog.h"

namespace linewright {

/** What a dialog hears of its controls. */
struct ControlHooks {
    /** The user has changed what the widget holds. */
    std::function<void()> used;
    /** The user has pressed a button, and what it does is done. */
    std::function<void(const host::ShownWidget& button)> pressed;
    /** Something to be read by the user; "" where nothing is any more. */
    std::function<void(const QString& sentence)> said;
    /** Several cells of a spreadsheet were pasted, and not taken. */
    std::function<void(const QString& cells)> cellsPasted;
};

/** One widget of a dialog on the screen: shows the host's widget, and passes on what the user does
 *  to it. Neither the Qt widget nor the host's is touched once the host has closed the dialog. */
class Control {
  public:
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;
    virtual ~Control() = default;

    /** What stands in the dialog; belongs to its parent. */
    QWidget* View() const { return view; }
    /** Takes over what the host's widget holds now. */
    void Show();
    /** Whether what it shows was made of data that has been changed since. */
    virtual void SetStale(bool /*isStale*/) {}
    /** Of a result, the text that is shown, unless it is stale; and shows it again where the host
     *  has been started anew. */
    virtual QString FreshResult() const { return {}; }
    virtual void ShowResult(const QString& /*text*/) {}
    host::ShownWidget& Shown() const { return hostWidget; }

  protected:
    Control(host::ShownWidget& shown, QWidget* qtView) : hostWidget(shown), view(qtView) {}

    virtual void ShowContent() = 0;

    host::ShownWidget& hostWidget;

  private:
    QWidget* view;
};

/** The control for a widget; its view gets `parent`. `locale` is the window's. */
std::unique_ptr<Control> MakeControl(host::ShownWidget& shown, QWidget* parent,
                                     const ControlHooks& hooks, const QString& locale);

}  // namespace linewright
