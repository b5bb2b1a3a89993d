#pragma once

#include "IPMUnknown.h"

class IDataBase;

constexpr PMIID IID_IPMPERSIST = 0x0F02;

/** What a boss object that lives in a database offers its implementations. */
class IPMPersist : public IPMUnknown {
  public:
    enum { kDefaultIID = IID_IPMPERSIST };

    /** Announces a change of the object; only inside a transaction. */
    virtual void PreDirty() = 0;
    /** The database, owned by the application. */
    virtual IDataBase* GetDataBase() const = 0;
};
