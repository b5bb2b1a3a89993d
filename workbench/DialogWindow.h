#pragma once

#include <QDialog>
#include <QGroupBox>
#include <QLabel>
#include <QScrollArea>
#include <QSettings>
#include <QVariantMap>
#include <functional>
#include <memory>
#include <utility>
#include <vector>

#include "views/DialogLayout.h"
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
    // A widget that needs another size asks whatever it stands in.
    bool event(QEvent* event) override;
    bool eventFilter(QObject* frame, QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    void WidgetChanged(host::ShownWidget& widget) override;
    void DialogClosed() override;

    Control* ControlOf(const host::ShownWidget* widget) const;
    void SetStale(bool isStale);
    void KeepOnScreen();
    void MakeFrames();
    /** The frame of its group, what scrolls, or for the row of buttons the window itself. */
    QWidget* ParentFor(const host::ShownWidget& widget);
    void MakeControls();
    void NameControls();
    void OrderTabs();
    DialogLayout LayOutFor(QSize size) const;
    /** Gives the window the size that its widgets need, and all of them their places. */
    void Fit();
    int NoticeHeight() const;
    void Arrange();
    QString PlaceKey() const;

    host::ShownDialog* dialog;  // nullptr once the host has closed it
    QSettings& settings;
    RsrcID resource;
    ControlHooks hooks;
    QLabel* notice;
    QScrollArea* area;  // with all groups
    std::vector<std::pair<host::ShownWidget*, std::unique_ptr<Control>>> controls;
    std::vector<QGroupBox*> frames;  // by group; nullptr for one without a frame
};

}  // namespace linewright
