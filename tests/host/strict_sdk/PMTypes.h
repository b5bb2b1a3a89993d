#pragma once

#include "BaseType.h"

/** An identifier of one kind: made from a number and from nothing else, and only when it is said;
 *  never a number again; not known to the compiler. */
template <class Kind>
class StrictID {
  public:
    explicit StrictID(uint32 idNumber) : number(idNumber) {}

    bool operator==(const StrictID&) const = default;

  private:
    uint32 number;
};

using ClassID = StrictID<class ClassIDKind>;
using PMIID = StrictID<class PMIIDKind>;
using ImplementationID = StrictID<class ImplementationIDKind>;
using PluginID = StrictID<class PluginIDKind>;
using ActionID = StrictID<class ActionIDKind>;
using WidgetID = StrictID<class WidgetIDKind>;

const PMIID IID_IPMUNKNOWN(0);
