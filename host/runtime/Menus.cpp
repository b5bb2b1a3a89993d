#include "host/runtime/Menus.h"

#include "CreateObject.h"
#include "IActionComponent.h"
#include "host/runtime/Running.h"

namespace host {

int32 CountMenuItems() {
    const Running* const running = GetRunning();
    return running ? static_cast<int32>(running->views.MenuItems().size()) : 0;
}

MenuItem GetMenuItem(int32 index) {
    if (index < 0 || index >= CountMenuItems()) return {};
    const MenuResource& item = GetRunning()->views.MenuItems()[static_cast<std::size_t>(index)];
    return {PMString(item.menu.c_str()), PMString(item.text.c_str()), item.action};
}

bool DoAction(ActionID action) {
    const Running* const running = GetRunning();
    if (!running) return false;
    const auto components = running->classes.WithInterface(IID_IACTIONCOMPONENT);
    for (const BossClass* component : components) {
        const InterfacePtr<IActionComponent> object(
            static_cast<IActionComponent*>(CreateObject(component->id, IID_IACTIONCOMPONENT)));
        if (object) object->DoAction(nullptr, action, {}, nullptr);
    }
    return !components.empty();
}

}  // namespace host
