#include "host/runtime/ClassTable.h"

#include <algorithm>
#include <cstdio>
#include <map>
#include <set>
#include <stdexcept>

#include "host/runtime/Dialog.h"
#include "host/runtime/Paths.h"
#include "host/runtime/ResourceFile.h"

namespace fs = std::filesystem;

namespace host {

namespace {

std::string Hex(uint32 id) {
    char text[16];
    std::snprintf(text, sizeof text, "0x%X", static_cast<unsigned>(id));
    return text;
}

/** The implementations that a plug-in registered, and which of them a class has used. */
class Registrations {
  public:
    explicit Registrations(const PlugIn& plugIn) {
        for (auto* record = plugIn.GetImplementations(); record; record = record->next) {
            if (!fRecords.emplace(record->id, record).second) {
                throw std::runtime_error("implementation " + Hex(record->id) +
                                         " is registered twice by the plug-in");
            }
        }
    }

    const ImplementationRecord* Use(ImplementationID id) {
        const auto found = fRecords.find(id);
        if (found == fRecords.end()) return nullptr;
        fUsed.insert(id);
        return found->second;
    }

    void ExpectAllUsed(const fs::path& resources) const {
        for (const auto& [id, record] : fRecords) {
            if (fUsed.contains(id)) continue;
            throw std::runtime_error("implementation " + Hex(id) + " (" + record->className +
                                     ") is registered by the plug-in but used by no class in " +
                                     Utf8FromPath(resources));
        }
    }

  private:
    std::map<ImplementationID, const ImplementationRecord*> fRecords;
    std::set<ImplementationID> fUsed;
};

Binding ReadBinding(const ResourceFile& file, const toml::table& table,
                    Registrations& registrations) {
    file.ExpectOnly(table, {"name", "id", "implementation"});
    file.GetText(table, "name");
    const ImplementationID implementation = file.GetID(table, "implementation");
    const ImplementationRecord* const record = registrations.Use(implementation);
    if (!record) {
        file.Fail(table,
                  "implementation " + Hex(implementation) + " is not registered by the plug-in");
    }
    return {file.GetID(table, "id"), implementation, record->create, record->destroy,
            record->readWrite};
}

bool ReadIsPersistent(const ResourceFile& file, const toml::table& table) {
    const toml::node* const node = table.get("persistent");
    if (!node) return false;
    const auto value = node->value_exact<bool>();
    if (!value) file.Fail(*node, "\"persistent\" is true or false");
    return *value;
}

/** What a class has from the host's class that it is based on; nothing where it names none. */
std::vector<Binding> ReadBase(const ResourceFile& file, const toml::table& table) {
    if (!table.contains("base")) return {};
    const std::string name = file.GetText(table, "base");
    if (name != kDialogClass.name) file.Fail(file.Get(table, "base"), "no such class of the host");
    return kDialogClass.bindings;
}

BossClass ReadClass(const ResourceFile& file, const toml::table& table,
                    Registrations& registrations) {
    file.ExpectOnly(table, {"name", "class", "base", "persistent", "interfaces"});
    BossClass result{.name = file.GetText(table, "name"),
                     .id = file.GetID(table, "class"),
                     .isPersistent = ReadIsPersistent(file, table),
                     .bindings = ReadBase(file, table)};
    std::set<PMIID> interfaces;
    for (const Binding& binding : result.bindings) interfaces.insert(binding.interfaceID);
    for (const toml::table* element : file.GetTables(table, "interfaces")) {
        const Binding binding = ReadBinding(file, *element, registrations);
        if (!interfaces.insert(binding.interfaceID).second) {
            file.Fail(*element,
                      "interface " + Hex(binding.interfaceID) + " stands twice in " + result.name);
        }
        result.bindings.push_back(binding);
    }
    return result;
}

}  // namespace

ClassTable::ClassTable(const Definitions& definitions, const PlugIn& plugIn) {
    Registrations registrations(plugIn);
    for (const ResourceFile& file : definitions.files) {
        file.ExpectOnly(file.Root(), {"plugin", "boss", "dialog", "menu"});
        file.GetID(file.Root(), "plugin");
        const bool showsOnly = file.Root().contains("dialog") || file.Root().contains("menu");
        if (showsOnly && !file.Root().contains("boss")) continue;
        for (const toml::table* table : file.GetTables(file.Root(), "boss")) {
            BossClass next = ReadClass(file, *table, registrations);
            if (const BossClass* const first = Find(next.id)) {
                file.Fail(*table, "class " + Hex(next.id) + " of " + next.name +
                                      " is already that of " + first->name);
            }
            fClasses.push_back(std::move(next));
        }
    }
    registrations.ExpectAllUsed(definitions.folder);
}

const BossClass* ClassTable::Find(ClassID id) const {
    const auto found = std::find_if(fClasses.begin(), fClasses.end(),
                                    [id](const BossClass& boss) { return boss.id == id; });
    return found == fClasses.end() ? nullptr : &*found;
}

std::vector<const BossClass*> ClassTable::WithInterface(PMIID interfaceID) const {
    std::vector<const BossClass*> result;
    for (const BossClass& boss : fClasses) {
        if (boss.Has(interfaceID)) result.push_back(&boss);
    }
    return result;
}

}  // namespace host
