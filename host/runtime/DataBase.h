#pragma once

#include <filesystem>
#include <map>
#include <utility>
#include <vector>

#include "IDataBase.h"
#include "host/runtime/DataBaseFile.h"

namespace host {

class Boss;

/** The application's database: one object of each persistent class, kept as the bytes that its
 *  implementations wrote at the end of the last transaction that changed it. Its file is written
 *  then; without one, or when it cannot be written, the bytes live as long as the host runs. */
class DataBase final : public IDataBase {
  public:
    DataBase() = default;
    DataBase(const DataBase&) = delete;
    DataBase& operator=(const DataBase&) = delete;

    void BeginTransaction() noexcept override;
    void EndTransaction() noexcept override;

    /** Takes the records of a file over, and keeps them there from now on. Throws
     *  std::runtime_error for a file that is damaged. */
    void UseFile(const std::filesystem::path& file);

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
    std::filesystem::path fFile;
    Records fRecords;
    std::map<ClassID, Boss*> fObjects;
    std::vector<Boss*> fDirty;
    bool fInTransaction = false;
};

}  // namespace host
