#pragma once

#include <QAction>
#include <QList>
#include <QWidget>

namespace linewright {

/** The menus of the window that a page has entries in. */
enum class MenuPlace { kFile, kEdit, kView };

/** One of the window's pages. */
class Page : public QWidget {
  public:
    using QWidget::QWidget;

    /** Says everything in a locale from now on, and begins anew what it has of the plug-in, which
     *  has just been started in this locale. Called before it is first shown, and again when
     *  another language is chosen; between two calls the plug-in may have been another one. */
    virtual void Speak(const QString& locale) = 0;
    /** Makes anew what hangs on the preferences, which may be others. */
    virtual void Refresh() = 0;
    /** Its entries of a menu, in their order; those of the page that is shown stand there, so that
     *  two pages may have the same shortcut. They belong to the page and are always the same. */
    virtual QList<QAction*> Actions(MenuPlace menu) const = 0;
    /** Takes several cells of a spreadsheet, as they were pasted into another page; false where it
     *  has no use for them. */
    virtual bool TakeCells(const QString& /*cells*/) { return false; }
};

}  // namespace linewright
