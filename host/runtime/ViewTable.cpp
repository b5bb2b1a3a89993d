#include "host/runtime/ViewTable.h"

#include <algorithm>
#include <map>

#include "IPanelControlData.h"
#include "host/runtime/ClassTable.h"
#include "host/runtime/ResourceFile.h"

namespace host {

namespace {

const std::map<std::string, WidgetKind, std::less<>> kKinds{
    {"label", WidgetKind::kLabel},         {"editBox", WidgetKind::kEditBox},
    {"resultBox", WidgetKind::kResultBox}, {"description", WidgetKind::kDescription},
    {"checkBox", WidgetKind::kCheckBox},   {"popUp", WidgetKind::kPopUp},
    {"button", WidgetKind::kButton},
};

const toml::array& GetList(const ResourceFile& file, const toml::table& table,
                           std::string_view name) {
    const toml::node& node = file.Get(table, name);
    if (!node.is_array()) file.Fail(node, "\"" + std::string(name) + "\" is a list");
    return *node.as_array();
}

std::vector<std::string> ReadItems(const ResourceFile& file, const toml::table& table) {
    std::vector<std::string> items;
    for (const toml::node& element : GetList(file, table, "items")) {
        const auto item = element.value_exact<std::string>();
        if (!item) file.Fail(element, "an item is a string");
        items.push_back(*item);
    }
    return items;
}

WidgetResource ReadWidget(const ResourceFile& file, const toml::table& table, WidgetPlace place) {
    file.ExpectOnly(
        table, {"kind", "id", "text", "items", "maxLength", "maxCharacter", "visible", "column"});
    WidgetResource widget;
    widget.place = place;
    const auto kind = kKinds.find(file.GetText(table, "kind"));
    if (kind == kKinds.end()) file.Fail(file.Get(table, "kind"), "no such kind of widget");
    widget.kind = kind->second;
    if (table.contains("id")) widget.id = file.GetID(table, "id");
    if (table.contains("text")) widget.text = file.GetText(table, "text");
    if (table.contains("items")) widget.items = ReadItems(file, table);
    if (table.contains("maxLength"))
        widget.maxLength = static_cast<int32>(file.GetID(table, "maxLength"));
    if (table.contains("maxCharacter")) widget.maxCharacter = file.GetID(table, "maxCharacter");
    if (const toml::node* const visible = table.get("visible")) {
        const auto value = visible->value_exact<bool>();
        if (!value) file.Fail(*visible, "\"visible\" is true or false");
        widget.isVisible = *value;
    }
    if (table.contains("column")) {
        widget.place.column = static_cast<int32>(file.GetID(table, "column"));
        widget.place.spansRow = false;
    }
    return widget;
}

/** Reads one row of a group, or the row of buttons. */
void ReadRow(const ResourceFile& file, const toml::node& row, WidgetPlace place,
             std::vector<WidgetResource>& widgets) {
    if (!row.is_array() || row.as_array()->empty()) file.Fail(row, "a row is a list of widgets");
    const toml::array& cells = *row.as_array();
    if (place.group != WidgetPlace::kButtonRow) {
        if (cells.size() > 2) file.Fail(row, "a row of a group has one or two widgets");
        place.spansRow = cells.size() == 1;
    }
    for (const toml::node& cell : cells) {
        if (!cell.is_table()) file.Fail(cell, "a widget is a table");
        widgets.push_back(ReadWidget(file, *cell.as_table(), place));
        ++place.column;
    }
}

void ReadGroups(const ResourceFile& file, const toml::table& table, DialogResource& dialog) {
    for (const toml::table* group : file.GetTables(table, "group")) {
        file.ExpectOnly(*group, {"title", "rows"});
        WidgetPlace place{.group = static_cast<int32>(dialog.groups.size())};
        dialog.groups.push_back(group->contains("title") ? file.GetText(*group, "title") : "");
        for (const toml::node& row : GetList(file, *group, "rows")) {
            ReadRow(file, row, place, dialog.widgets);
            ++place.row;
        }
    }
}

const WidgetResource* FindWidget(const DialogResource& dialog, WidgetID id) {
    const auto found = std::find_if(dialog.widgets.begin(), dialog.widgets.end(),
                                    [id](const WidgetResource& widget) { return widget.id == id; });
    return id == 0 || found == dialog.widgets.end() ? nullptr : &*found;
}

WidgetID ReadButton(const ResourceFile& file, const toml::table& table, std::string_view name,
                    const DialogResource& dialog) {
    const WidgetID id = file.GetID(table, name);
    const WidgetResource* const button = FindWidget(dialog, id);
    if (!button || button->kind != WidgetKind::kButton)
        file.Fail(file.Get(table, name), "\"" + std::string(name) + "\" is no button's id");
    return id;
}

void CheckWidgets(const ResourceFile& file, const toml::table& table,
                  const DialogResource& dialog) {
    for (const WidgetResource& widget : dialog.widgets) {
        if (widget.id != 0 && FindWidget(dialog, widget.id) != &widget)
            file.Fail(table,
                      "two widgets of dialog " + std::to_string(dialog.id) + " have the same id");
    }
    if (dialog.widgets.back().kind == WidgetKind::kLabel)
        file.Fail(table, "the last label names nothing");
}

DialogResource ReadDialog(const ResourceFile& file, const toml::table& table,
                          const ClassTable& classes) {
    file.ExpectOnly(table, {"id", "class", "title", "default", "cancel", "buttons", "group"});
    DialogResource dialog;
    dialog.plugin = file.GetID(file.Root(), "plugin");
    dialog.id = static_cast<RsrcID>(file.GetID(table, "id"));
    dialog.classID = file.GetID(table, "class");
    const BossClass* const bossClass = classes.Find(dialog.classID);
    if (!bossClass || !bossClass->Has(IID_IPANELCONTROLDATA))
        file.Fail(file.Get(table, "class"), "\"class\" is no class based on kDialogBoss");
    dialog.title = file.GetText(table, "title");
    ReadGroups(file, table, dialog);
    ReadRow(file, file.Get(table, "buttons"), {.group = WidgetPlace::kButtonRow}, dialog.widgets);
    CheckWidgets(file, table, dialog);
    dialog.defaultButton = ReadButton(file, table, "default", dialog);
    dialog.cancelButton = ReadButton(file, table, "cancel", dialog);
    return dialog;
}

void ReadMenu(const ResourceFile& file, const toml::table& table,
              std::vector<MenuResource>& menuItems) {
    file.ExpectOnly(table, {"text", "items"});
    for (const toml::table* item : file.GetTables(table, "items")) {
        file.ExpectOnly(*item, {"text", "action"});
        menuItems.push_back({file.GetText(table, "text"), file.GetText(*item, "text"),
                             file.GetID(*item, "action")});
    }
}

}  // namespace

ViewTable::ViewTable(const Definitions& definitions, const ClassTable& classes) {
    for (const ResourceFile& file : definitions.files) {
        if (file.Root().contains("dialog")) {
            for (const toml::table* table : file.GetTables(file.Root(), "dialog")) {
                DialogResource dialog = ReadDialog(file, *table, classes);
                if (Find(dialog.plugin, dialog.id))
                    file.Fail(*table, "dialog " + std::to_string(dialog.id) + " is there twice");
                fDialogs.push_back(std::move(dialog));
            }
        }
        if (file.Root().contains("menu")) {
            for (const toml::table* table : file.GetTables(file.Root(), "menu"))
                ReadMenu(file, *table, fMenuItems);
        }
    }
}

const DialogResource* ViewTable::Find(PluginID plugin, RsrcID id) const {
    const auto found = std::find_if(fDialogs.begin(), fDialogs.end(), [&](const auto& dialog) {
        return dialog.plugin == plugin && dialog.id == id;
    });
    return found == fDialogs.end() ? nullptr : &*found;
}

}  // namespace host
