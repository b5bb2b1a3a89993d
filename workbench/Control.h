#pragma once

#include <QWidget>
#include <memory>

#include "host/runtime/ShownDialog.h"

namespace linewright {

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

  protected:
    Control(host::ShownWidget& shown, QWidget* qtView) : hostWidget(shown), view(qtView) {}

    virtual void ShowContent() = 0;

    host::ShownWidget& hostWidget;

  private:
    QWidget* view;
};

/** The control for a widget; its view gets `parent`. */
std::unique_ptr<Control> MakeControl(host::ShownWidget& shown, QWidget* parent);

}  // namespace linewright
