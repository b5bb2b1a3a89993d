#pragma once

#include <map>
#include <utility>
#include <vector>

#include "IDataBase.h"
#include "host/runtime/BossClass.h"
#include "host/runtime/MemoryStream.h"

namespace host {

class Boss;

/** What a stored record belongs to. */
using StorageKey = std::pair<ClassID, ImplementationID>;

/** The application's database: one object of each persistent class, kept as the bytes that its
 *  implementations wrote at the end of the last transaction that changed it. The bytes live as
 *  long as the host runs. */
class DataBase final : public IDataBase {
  public:
    DataBase() = default;
    DataBase(const DataBase&) = delete;
    DataBase& operator=(const DataBase&) = delete;

    void BeginTransaction() noexcept override;
    void EndTransaction() noexcept override;

    /** The object of a persistent class, with a reference for the caller. */
    Boss* Open(const BossClass& bossClass);
    /** Keeps a changed object alive until the transaction stores it. */
    void MarkDirty(Boss& boss);
    /** Hears that an object is gone. */
    void Forget(const Boss& boss);
    /** Lets go of changed objects without storing them. */
    void Close();

    /** The bytes stored for a key; nullptr when there are none. */
    const Bytes* Find(StorageKey key) const;
    void Put(StorageKey key, Bytes bytes) { fRecords[key] = std::move(bytes); }

  private:
    std::map<StorageKey, Bytes> fRecords;
    std::map<ClassID, Boss*> fObjects;
    std::vector<Boss*> fDirty;
    bool fInTransaction = false;
};

}  // namespace host
