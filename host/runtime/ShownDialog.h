#pragma once

#include "IDialog.h"
#include "PMString.h"

namespace host {

// An open dialog as whoever shows it sees it: what its widgets are and hold, and what a user can do
// to them. There is no screen in it. All of it belongs to the host and is valid from the moment
// FrontEnd::ShowDialog is called until DialogListener::DialogClosed has returned. Main thread only.

enum class WidgetKind {
    kLabel,        // names another widget
    kEditBox,      // a line to type in
    kResultBox,    // a line to read and copy
    kDescription,  // paragraphs to read; takes the room that is left
    kCheckBox,
    kPopUp,  // a closed list with one item chosen, or none
    kButton,
};

/** Where a widget stands. A dialog is a column of groups and, at its foot, a row of buttons; a
 * group is a grid of two columns, labels in the first and what they name in the second. */
struct WidgetPlace {
    /** The row of buttons instead of a group. */
    static constexpr int32 kButtonRow = -1;

    int32 group = 0;
    int32 row = 0;
    int32 column = 0;
    /** It takes both columns. */
    bool spansRow = false;
};

/** One widget. */
class ShownWidget {
  public:
    /** 0 for a widget that nobody asks for by number, such as most labels. */
    virtual WidgetID GetID() const = 0;
    virtual WidgetKind GetKind() const = 0;
    virtual WidgetPlace GetPlace() const = 0;
    /** Label: the widget that it names; nullptr for all others. */
    virtual ShownWidget* GetLabelled() const = 0;

    /** A widget that is never visible is there for the plug-in only. */
    virtual bool IsVisible() const = 0;
    virtual bool IsEnabled() const = 0;
    /** Label, check box, button: the caption in the current locale, "&" before its mnemonic. Boxes
     *  and description: the content. Pop-up: the item chosen, "" without one. */
    virtual PMString GetText() const = 0;
    /** Edit box: how many characters, and up to which code point, Type takes; 0 for any. */
    virtual int32 GetMaxLength() const = 0;
    virtual UTF32TextChar GetMaxCharacter() const = 0;
    /** Check box: 0 off, 1 undecided, 2 on. */
    virtual int32 GetState() const = 0;
    virtual int32 CountItems() const = 0;
    virtual PMString GetItem(int32 item) const = 0;
    virtual bool IsItemEnabled(int32 item) const = 0;
    /** The item chosen; -1 for none. */
    virtual int32 GetSelected() const = 0;

    // What the user does. False, and nothing happens, where a user could not do it: the wrong kind
    // of widget, one that is hidden or disabled, an item that is disabled or not there.

    /** Makes `text` the content. Characters that the box does not take are left out of what was
     *  inserted, with a beep. */
    virtual bool Type(const PMString& text) = 0;
    virtual bool Tick(bool on) = 0;
    /** Choosing the item that is chosen already is no change, but possible. */
    virtual bool Choose(int32 item) = 0;
    virtual bool Press() = 0;

  protected:
    ~ShownWidget() = default;
};

/** Hears of what happens to a dialog, whoever makes it happen. */
class DialogListener {
  public:
    /** Text, state, items, selection or whether it is enabled may be different now. */
    virtual void WidgetChanged(ShownWidget& widget) = 0;
    /** Called once; dialog and widgets are gone when this has returned and the host is done with
     *  what closed it. */
    virtual void DialogClosed() = 0;

  protected:
    ~DialogListener() = default;
};

/** One open dialog. */
class ShownDialog {
  public:
    virtual RsrcID GetResourceID() const = 0;
    virtual IDialog::DialogType GetType() const = 0;
    virtual PMString GetTitle() const = 0;
    virtual int32 CountGroups() const = 0;
    /** "" for a group without a frame. */
    virtual PMString GetGroupTitle(int32 group) const = 0;

    /** All widgets in tab order, groups from top to bottom, then the row of buttons. */
    virtual int32 CountWidgets() const = 0;
    virtual ShownWidget* GetWidget(int32 index) const = 0;
    /** nullptr when there is none of this id, or the id is 0. */
    virtual ShownWidget* FindShown(WidgetID id) const = 0;
    /** The buttons for the Return and Escape keys. */
    virtual ShownWidget* GetDefaultButton() const = 0;
    virtual ShownWidget* GetCancelButton() const = 0;

    /** At most one; nullptr for none. */
    virtual void SetListener(DialogListener* listener) = 0;
    virtual bool IsOpen() const = 0;
    /** The close box: the same as the cancel button. */
    virtual void PressCloseBox() = 0;

  protected:
    ~ShownDialog() = default;
};

}  // namespace host
