#pragma once

#include <string>
#include <vector>

#include "host/runtime/ShownDialog.h"

namespace host {

class ClassTable;
struct Definitions;

/** A widget as a resource describes it. Texts are keys. */
struct WidgetResource {
    WidgetKind kind = WidgetKind::kLabel;
    WidgetID id = 0;
    WidgetPlace place;
    bool isVisible = true;
    std::string text;
    std::vector<std::string> items;
    int32 maxLength = 0;
    UTF32TextChar maxCharacter = 0;
};

struct DialogResource {
    PluginID plugin = 0;
    RsrcID id = 0;
    ClassID classID = 0;
    std::string title;
    std::vector<std::string> groups;  // titles
    std::vector<WidgetResource> widgets;
    WidgetID defaultButton = 0;
    WidgetID cancelButton = 0;
};

struct MenuResource {
    std::string menu;
    std::string text;
    ActionID action = 0;
};

/** What the plug-in's resource definitions show: dialogs and menus. */
class ViewTable {
  public:
    ViewTable() = default;
    /** Throws std::runtime_error saying what does not fit together and where. */
    ViewTable(const Definitions& definitions, const ClassTable& classes);

    /** nullptr when there is none. */
    const DialogResource* Find(PluginID plugin, RsrcID id) const;
    const std::vector<MenuResource>& MenuItems() const { return fMenuItems; }

  private:
    std::vector<DialogResource> fDialogs;
    std::vector<MenuResource> fMenuItems;
};

}  // namespace host
