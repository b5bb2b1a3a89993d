#include "host/runtime/Counted.h"

#include <unordered_set>

#include "host/runtime/Thread.h"

namespace host {

namespace {

using Objects = std::unordered_set<Counted*>;

// Both are never destroyed: objects may be left when the process ends.
Objects& LiveObjects() {
    static Objects* const objects = new Objects;
    return *objects;
}

Objects& AbandonedObjects() {
    static Objects* const objects = new Objects;
    return *objects;
}

}  // namespace

uint32 Counted::LiveReferences() {
    uint32 references = 0;
    for (const Counted* object : LiveObjects()) references += object->fReferences;
    return references;
}

void Counted::AbandonAll() {
    for (Counted* object : LiveObjects()) object->fAbandoned = true;
    AbandonedObjects().merge(LiveObjects());
}

Counted::Counted() {
    LiveObjects().insert(this);
}

Counted::~Counted() {
    LiveObjects().erase(this);
}

void Counted::CountUp() const {
    CheckThread();
    ++fReferences;
}

void Counted::CountDown() const {
    CheckThread();
    if (--fReferences != 0 || fAbandoned) return;
    fReferences = 1;  // lest a reference that is taken and released meanwhile deletes it again
    delete this;
}

}  // namespace host
