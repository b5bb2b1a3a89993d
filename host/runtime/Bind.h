#pragma once

#include "host/runtime/BossClass.h"

namespace host {

/** Binds an implementation of the host's own, which needs no number. */
template <class Implementation>
Binding Bind() {
    return {Implementation::kDefaultIID, 0,
            [](IPMUnknown* boss) -> IPMUnknown* { return new Implementation(boss); },
            [](IPMUnknown* object) { delete static_cast<Implementation*>(object); }, nullptr};
}

}  // namespace host
