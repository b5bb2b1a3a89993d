#pragma once

#include "IPMUnknown.h"

/** A database of persistent objects. Changes are made between BeginTransaction and EndTransaction.
 *  Main thread only. */
class IDataBase {
  public:
    virtual void BeginTransaction() = 0;
    virtual void EndTransaction() = 0;

  protected:
    ~IDataBase() = default;
};

/** The database that the object behind an interface is kept in; nullptr when it is kept in none. */
PUBLIC_DECL IDataBase* GetDataBase(const IPMUnknown* object);
