#pragma once

#include <vector>

#include "host/runtime/BossClass.h"

namespace host {

struct Definitions;

/** The classes of a plug-in: those of its resource definitions, each interface bound to the
 *  implementation that the plug-in registered. */
class ClassTable {
  public:
    ClassTable() = default;
    /** Throws std::runtime_error saying what does not fit together and where. */
    ClassTable(const Definitions& definitions, const PlugIn& plugIn);

    /** The class of an id; nullptr when there is none. */
    const BossClass* Find(ClassID id) const;
    /** The classes with an interface, in the order of their definition. */
    std::vector<const BossClass*> WithInterface(PMIID interfaceID) const;

  private:
    std::vector<BossClass> fClasses;
};

}  // namespace host
