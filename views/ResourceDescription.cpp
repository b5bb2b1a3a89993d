#include "views/ResourceDescription.h"

#include <fmt/format.h>

#include <map>
#include <nlohmann/json.hpp>
#include <stdexcept>

#include "CoreResTypes.h"
#include "PlugIn.h"
#include "host/runtime/Library.h"
#include "host/runtime/Paths.h"
#include "host/runtime/ResourceFile.h"
#include "host/runtime/StringTable.h"
#include "host/runtime/ViewTable.h"
#include "text/Utf8.h"
#include "types/BarcodeTypes.h"
#include "views/StatedMeasures.h"

namespace linewright {

using host::DialogResource;
using host::WidgetKind;
using host::WidgetResource;
using nlohmann::ordered_json;

namespace {

struct Locale {
    std::string name;
    host::StringTable table;

    std::u32string TextOf(std::string_view key) const {
        const std::u32string characters = CharactersFromUtf8(key);
        const std::u32string* const text = table.Find(characters);
        return text ? *text : characters;
    }
};

std::vector<Locale> LocalesIn(const std::filesystem::path& resources) {
    std::vector<Locale> locales;
    for (const std::string& name : host::ListLocales(resources))
        if (name != host::kPseudoLocale) locales.push_back({name, {resources, name}});
    return locales;
}

std::string Hex(uint32 id) {
    return fmt::format("0x{:X}", id);
}

ordered_json TextOrNull(const std::string& text) {
    return text.empty() ? ordered_json() : ordered_json(text);
}

ordered_json JsonOfWidgetID(WidgetID id) {
    if (id == kDefaultWidgetId) return {};
    if (id == kOKButtonWidgetID) return "kOKButtonWidgetID";
    if (id == kCancelButton_WidgetID) return "kCancelButton_WidgetID";
    return Hex(id);
}

ordered_json JsonOf(const LayoutBox& box) {
    return {{"left", box.left}, {"top", box.top}, {"width", box.width}, {"height", box.height}};
}

ordered_json ImplementationsOf(const std::filesystem::path& plugIn) {
    host::Library library;
    library.Load(plugIn, "plug-in library");
    const auto entry = reinterpret_cast<PlugIn* (*)()>(library.Find("GetPlugIn"));
    if (!entry)
        throw std::runtime_error("no plug-in, GetPlugIn is missing: " + host::Utf8FromPath(plugIn));
    auto list = ordered_json::array();
    for (auto* record = entry()->GetImplementations(); record; record = record->next) {
        list.push_back({{"id", Hex(record->id)},
                        {"class", record->className},
                        {"persistent", record->readWrite != nullptr}});
    }
    return list;
}

ordered_json JsonOfClass(const host::ResourceFile& file, const toml::table& table, uint32 plugIn) {
    auto interfaces = ordered_json::array();
    for (const toml::table* element : file.GetTables(table, "interfaces")) {
        const PMIID id = file.GetID(*element, "id");
        interfaces.push_back({{"name", file.GetText(*element, "name")},
                              {"id", id < plugIn ? ordered_json() : ordered_json(Hex(id))},
                              {"implementation", Hex(file.GetID(*element, "implementation"))}});
    }
    return {{"name", file.GetText(table, "name")},
            {"id", Hex(file.GetID(table, "class"))},
            {"base", table.contains("base") ? ordered_json(file.GetText(table, "base")) : nullptr},
            {"persistent", table["persistent"].value_or(false)},
            {"interfaces", interfaces}};
}

ordered_json ClassesOf(const host::Definitions& definitions) {
    auto list = ordered_json::array();
    for (const host::ResourceFile& file : definitions.files) {
        if (!file.Root().contains("boss")) continue;
        const uint32 plugIn = file.GetID(file.Root(), "plugin");
        for (const toml::table* table : file.GetTables(file.Root(), "boss"))
            list.push_back(JsonOfClass(file, *table, plugIn));
    }
    return list;
}

ordered_json ActionsOf(const host::ViewTable& views) {
    auto list = ordered_json::array();
    for (const host::MenuResource& item : views.MenuItems())
        list.push_back({{"id", Hex(item.action)}, {"text", item.text}});
    return list;
}

ordered_json MenusOf(const host::ViewTable& views) {
    auto list = ordered_json::array();
    for (const host::MenuResource& item : views.MenuItems()) {
        if (list.empty() || list.back()["text"] != item.menu)
            list.push_back({{"text", item.menu}, {"actions", ordered_json::array()}});
        list.back()["actions"].push_back(Hex(item.action));
    }
    return list;
}

/** A pop-up without items is the one that the plug-in fills: with the types. */
std::vector<std::u32string> TextsOf(const WidgetResource& widget, const Locale& locale) {
    if (widget.kind != WidgetKind::kPopUp) return {locale.TextOf(widget.text)};
    std::vector<std::u32string> texts;
    for (const std::string& item : widget.items) texts.push_back(locale.TextOf(item));
    if (!texts.empty()) return texts;
    for (const BarcodeType& type : kBarcodeTypes) texts.push_back(locale.TextOf(type.displayKey));
    return texts;
}

DialogLayout LayoutOf(const DialogResource& dialog, const Locale& locale) {
    std::vector<LayoutGroup> groups;
    for (const std::string& title : dialog.groups)
        groups.push_back(StatedGroup(title.empty() ? U"" : locale.TextOf(title)));
    std::vector<LayoutWidget> widgets;
    for (const WidgetResource& widget : dialog.widgets) {
        if (!widget.isVisible) continue;
        widgets.push_back({widget.kind, widget.place,
                           StatedSize(widget.kind, TextsOf(widget, locale)),
                           widget.id == dialog.defaultButton});
    }
    return LayOut(groups, widgets);
}

ordered_json JsonOfWidget(const WidgetResource& widget) {
    return {{"id", JsonOfWidgetID(widget.id)},
            {"kind", NameOf(widget.kind)},
            {"visible", widget.isVisible},
            {"text", TextOrNull(widget.text)},
            {"items", widget.items},
            {"maxLength", widget.maxLength},
            {"maxCharacter", widget.maxCharacter},
            {"boxes", ordered_json::object()}};
}

ordered_json JsonOfDialog(const DialogResource& dialog, const std::vector<Locale>& locales) {
    auto sizes = ordered_json::object();
    auto groups = ordered_json::array();
    auto widgets = ordered_json::array();
    for (const std::string& title : dialog.groups)
        groups.push_back({{"title", TextOrNull(title)}, {"boxes", ordered_json::object()}});
    for (const WidgetResource& widget : dialog.widgets) widgets.push_back(JsonOfWidget(widget));
    for (const Locale& locale : locales) {
        const DialogLayout layout = LayoutOf(dialog, locale);
        sizes[locale.name] = {{"width", layout.size.width}, {"height", layout.size.height}};
        for (std::size_t i = 0; i < groups.size(); ++i)
            groups[i]["boxes"][locale.name] = JsonOf(layout.groups[i]);
        auto box = layout.widgets.begin();
        for (ordered_json& widget : widgets)
            if (widget["visible"] == true) widget["boxes"][locale.name] = JsonOf(*box++);
    }
    return {{"id", dialog.id},
            {"class", Hex(dialog.classID)},
            {"title", dialog.title},
            {"default", JsonOfWidgetID(dialog.defaultButton)},
            {"cancel", JsonOfWidgetID(dialog.cancelButton)},
            {"sizes", sizes},
            {"groups", groups},
            {"widgets", widgets}};
}

ordered_json DialogsOf(const host::ViewTable& views, const std::vector<Locale>& locales) {
    auto list = ordered_json::array();
    for (const DialogResource& dialog : views.Dialogs())
        list.push_back(JsonOfDialog(dialog, locales));
    return list;
}

ordered_json StringsOf(const std::vector<Locale>& locales) {
    auto tables = ordered_json::object();
    for (const Locale& locale : locales) {
        std::map<std::string, std::string> texts;
        for (const auto& [key, text] : locale.table.Texts())
            texts.emplace(Utf8FromCharacters(key), Utf8FromCharacters(text));
        tables[locale.name] = texts;
    }
    return tables;
}

}  // namespace

std::string DescribeResources(const std::filesystem::path& plugIn, std::string_view version) {
    const std::filesystem::path resources = plugIn.parent_path() / "resources";
    const host::Definitions definitions(resources);
    // The host that has started the plug-in has seen that dialogs have classes of dialogs.
    const host::ViewTable views(definitions, [](ClassID) { return true; });
    const std::vector<Locale> locales = LocalesIn(resources);
    const host::ResourceFile& first = definitions.files.front();
    return ordered_json{{"version", version},
                        {"plugin", Hex(first.GetID(first.Root(), "plugin"))},
                        {"implementations", ImplementationsOf(plugIn)},
                        {"classes", ClassesOf(definitions)},
                        {"actions", ActionsOf(views)},
                        {"menus", MenusOf(views)},
                        {"dialogs", DialogsOf(views, locales)},
                        {"strings", StringsOf(locales)}}
        .dump(2);
}

}  // namespace linewright
