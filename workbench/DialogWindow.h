#pragma once

#include <QDialog>
#include <QGridLayout>
#include <QSettings>
#include <memory>
#include <utility>
#include <vector>

#include "host/runtime/ShownDialog.h"
#include "workbench/Control.h"

namespace linewright {

/** A dialog of the plug-in on the screen. It closes when the host says so; whatever else would
 *  close it is passed on to the host as its close box. */
class DialogWindow final : public QDialog, private host::DialogListener {
  public:
    /** The settings keep the place of the window, and outlive it. */
    DialogWindow(host::ShownDialog& shown, QSettings& userSettings, QWidget* parent);
    ~DialogWindow() override;

    /** The view of a visible widget of the plug-in; nullptr when there is none of this id. */
    QWidget* FindView(WidgetID id) const;
    /** All views in tab order. */
    std::vector<QWidget*> Views() const;

    void done(int result) override;
    void reject() override;

  protected:
    void closeEvent(QCloseEvent* event) override;

  private:
    void WidgetChanged(host::ShownWidget& widget) override;
    void DialogClosed() override;

    Control* ControlOf(const host::ShownWidget* widget) const;
    void MakeControls();
    void NameControls();
    void Arrange();
    QLayout* ArrangeGroup(int32 group);
    QLayout* ArrangeButtons();
    void AlignColumns();
    void OrderTabs();
    QString PlaceKey() const;

    host::ShownDialog* dialog;  // nullptr once the host has closed it
    QSettings& settings;
    RsrcID resource;
    std::vector<std::pair<host::ShownWidget*, std::unique_ptr<Control>>> controls;
    std::vector<QGridLayout*> grids;
};

}  // namespace linewright
