#include "host/runtime/DataBase.h"

#include <algorithm>
#include <new>
#include <utility>

#include "InterfacePtr.h"
#include "host/runtime/Boss.h"
#include "host/runtime/Halt.h"

namespace host {

void DataBase::BeginTransaction() noexcept {
    if (fInTransaction && kChecksRules) Halt("a transaction is begun inside another one");
    fInTransaction = true;
}

void DataBase::EndTransaction() noexcept try {
    if (!fInTransaction && kChecksRules) Halt("a transaction is ended that was not begun");
    fInTransaction = false;
    if (fDirty.empty()) return;
    for (Boss* boss : fDirty) boss->Store();
    Close();
    if (!fFile.empty()) WriteRecords(fFile, fRecords);
} catch (const std::bad_alloc&) {
    Close();  // what is not stored has not changed
}

void DataBase::UseFile(const std::filesystem::path& file) {
    fRecords = ReadRecords(file);
    fFile = file;
}

Boss* DataBase::Open(const BossClass& bossClass) {
    Boss*& object = fObjects[bossClass.id];
    if (object) {
        object->AddRef();
    } else {
        object = new Boss(bossClass, this);
    }
    return object;
}

void DataBase::MarkDirty(Boss& boss) {
    if (!fInTransaction && kChecksRules) Halt("an object is changed outside a transaction");
    if (std::find(fDirty.begin(), fDirty.end(), &boss) != fDirty.end()) return;
    fDirty.push_back(&boss);
    boss.AddRef();
}

void DataBase::Forget(const Boss& boss) {
    fObjects.erase(boss.GetClass());
}

void DataBase::Close() {
    for (Boss* boss : std::exchange(fDirty, {})) boss->Release();
}

const Bytes* DataBase::Find(StorageKey key) const {
    const auto found = fRecords.find(key);
    return found == fRecords.end() ? nullptr : &found->second;
}

}  // namespace host

IDataBase* GetDataBase(const IPMUnknown* object) {
    const InterfacePtr<IPMPersist> persist(object, UseDefaultIID());
    return persist ? persist->GetDataBase() : nullptr;
}
