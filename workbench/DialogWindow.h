#pragma once

#include <QDialog>
#include <QGridLayout>
#include <QLabel>
#include <QSettings>
#include <QVariantMap>
#include <functional>
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
    /** The settings keep the place of the window, and outlive it; `cellsPasted` hears of several
     *  cells of a spreadsheet. */
    DialogWindow(host::ShownDialog& shown, QSettings& userSettings,
                 std::function<void(const QString&)> cellsPasted, QWidget* parent);
    ~DialogWindow() override;

    /** The view of a visible widget of the plug-in; nullptr when there is none of this id. */
    QWidget* FindView(WidgetID id) const;
    /** All views in tab order. */
    std::vector<QWidget*> Views() const;

    /** Puts the cursor where one begins: into the box to type in, where there is one. */
    void FocusFirst();
    /** The number of the dialog's resource. */
    RsrcID Resource() const { return resource; }
    /** What its widgets hold, to be put into the same dialog when the host opens it anew. */
    QVariantMap Content() const;
    void SetContent(const QVariantMap& content);

    void done(int result) override;
    void reject() override;

  protected:
    void closeEvent(QCloseEvent* event) override;

  private:
    void WidgetChanged(host::ShownWidget& widget) override;
    void DialogClosed() override;

    Control* ControlOf(const host::ShownWidget* widget) const;
    void SetStale(bool isStale);
    void KeepOnScreen();
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
    ControlHooks hooks;
    QLabel* notice;
    std::vector<std::pair<host::ShownWidget*, std::unique_ptr<Control>>> controls;
    std::vector<QGridLayout*> grids;
};

}  // namespace linewright
