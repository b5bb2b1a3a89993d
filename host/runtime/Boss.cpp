#include "host/runtime/Boss.h"

#include <new>

#include "InterfacePtr.h"
#include "host/runtime/DataBase.h"
#include "host/runtime/Faults.h"
#include "host/runtime/MemoryStream.h"

namespace host {

Boss::Boss(const BossClass& bossClass, DataBase* dataBase)
    : fClass(bossClass), fDataBase(dataBase) {
    if (dataBase) fPersist.emplace(*this, *dataBase);
}

Boss::~Boss() {
    while (!fImplementations.empty()) {
        const Implementation last = fImplementations.back();
        fImplementations.pop_back();
        last.binding->destroy(last.object);
    }
    if (fDataBase) fDataBase->Forget(*this);
}

IPMUnknown* Boss::QueryInterface(PMIID interfaceID) const noexcept try {
    if (IsAbandoned() || IsTakenAway(interfaceID)) return nullptr;
    IPMUnknown* const found = const_cast<Boss*>(this)->Find(interfaceID);
    if (found) CountUp();
    return found;
} catch (const std::bad_alloc&) {
    return nullptr;
}

IPMUnknown* Boss::Find(PMIID interfaceID) {
    if (interfaceID == IID_IPMUNKNOWN) return this;
    if (interfaceID == IID_IPMPERSIST && fPersist) return &*fPersist;
    for (const Implementation& made : fImplementations) {
        if (made.binding->interfaceID == interfaceID) return made.object;
    }
    for (const Binding& binding : fClass.bindings) {
        if (binding.interfaceID == interfaceID) return Create(binding);
    }
    return nullptr;
}

IPMUnknown* Boss::Create(const Binding& binding) {
    IPMUnknown* const object = binding.create(this);
    if (!object) return nullptr;
    fImplementations.push_back({&binding, object});
    if (fDataBase && binding.readWrite) Load({&binding, object});
    return object;
}

void Boss::Load(const Implementation& implementation) {
    const Binding& binding = *implementation.binding;
    const Bytes* const stored = fDataBase->Find({fClass.id, binding.implementationID});
    if (!stored) return;
    InterfacePtr<MemoryStream> stream(new MemoryStream(*stored));
    binding.readWrite(implementation.object, stream, binding.implementationID);
}

void Boss::Store() {
    for (const auto& [binding, object] : fImplementations) {
        if (!binding->readWrite) continue;
        InterfacePtr<MemoryStream> stream(new MemoryStream);
        binding->readWrite(object, stream, binding->implementationID);
        fDataBase->Put({fClass.id, binding->implementationID}, stream->Written());
    }
}

void Boss::Persist::PreDirty() noexcept {
    fDataBase.MarkDirty(fBoss);
}

IDataBase* Boss::Persist::GetDataBase() const noexcept {
    return &fDataBase;
}

}  // namespace host
