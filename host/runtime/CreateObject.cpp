#include "CreateObject.h"

#include "InterfacePtr.h"
#include "host/runtime/Boss.h"
#include "host/runtime/Running.h"

namespace {

host::Boss* MakeBoss(host::Running& running, const host::BossClass& bossClass) {
    return bossClass.isPersistent ? running.dataBase.Open(bossClass) : new host::Boss(bossClass);
}

}  // namespace

IPMUnknown* CreateObject(ClassID classID, PMIID interfaceID) try {
    host::Running* const running = host::GetRunning();
    const host::BossClass* const bossClass = running ? running->classes.Find(classID) : nullptr;
    if (!bossClass) return nullptr;
    const InterfacePtr<host::Boss> boss(MakeBoss(*running, *bossClass));
    return boss->QueryInterface(interfaceID);
} catch (...) {
    return nullptr;
}
