#pragma once

#include <algorithm>
#include <string>
#include <vector>

#include "PlugIn.h"

namespace host {

/** One interface of a class, and the implementation that answers for it. */
struct Binding {
    PMIID interfaceID;
    ImplementationID implementationID;
    ImplementationRecord::CreateProc create;
    ImplementationRecord::DestroyProc destroy;
    ImplementationRecord::ReadWriteProc readWrite;  // nullptr: not kept in the database
};

struct BossClass {
    std::string name;
    ClassID id = 0;
    bool isPersistent = false;
    std::vector<Binding> bindings;

    bool Has(PMIID interfaceID) const {
        return std::any_of(bindings.begin(), bindings.end(), [interfaceID](const Binding& binding) {
            return binding.interfaceID == interfaceID;
        });
    }
};

}  // namespace host
