#include "plugin/LWRAppPrefs.h"

#include "IDataBase.h"
#include "core/HostMemory.h"
#include "core/PString.h"

namespace linewright {

namespace {

uint8* CopyOf(const uint8* block, uint32 size) {
    uint8* const copy = AllocBlock(size);
    if (copy) CopyBytes(copy, block, size);
    return copy;
}

/** A change of the database, for as long as it lasts; nothing for an object that is in none. */
class Transaction {
  public:
    explicit Transaction(const IPMUnknown* object) : database(GetDataBase(object)) {
        if (database) database->BeginTransaction();
    }
    Transaction(const Transaction&) = delete;
    Transaction& operator=(const Transaction&) = delete;
    ~Transaction() {
        if (database) database->EndTransaction();
    }

  private:
    IDataBase* database;
};

}  // namespace

LWRAppPrefs::~LWRAppPrefs() {
    FreeBlock(stored);
}

uint8* LWRAppPrefs::CopyBlock(uint32* size) const {
    uint8* const copy = stored ? CopyOf(stored, storedSize) : nullptr;
    if (size) *size = copy ? storedSize : 0;
    return copy;
}

void LWRAppPrefs::SetBlock(const uint8* block, uint32 size) {
    uint8* const copy = block ? CopyOf(block, size) : nullptr;
    if (block && !copy) return;
    const Transaction transaction(this);
    PreDirty();
    Forget();
    if (!copy) return;
    stored = copy;
    storedSize = size;
}

void LWRAppPrefs::ReadWrite(IPMStream* stream, ImplementationID) {
    if (stream->IsReading()) return Read(*stream);
    auto size = static_cast<int32>(storedSize);
    stream->XferInt32(size);
    if (stored) stream->XferByte(stored, size);
}

void LWRAppPrefs::Read(IPMStream& stream) {
    Forget();
    auto size = static_cast<int32>(kNoBlock);
    stream.XferInt32(size);
    if (size < 0) return;
    stored = AllocBlock(static_cast<uint32>(size));
    if (!stored) return;
    storedSize = static_cast<uint32>(size);
    if (stream.XferByte(stored, size) != size) Forget();
}

void LWRAppPrefs::Forget() {
    FreeBlock(stored);
    stored = nullptr;
    storedSize = kNoBlock;
}

}  // namespace linewright
