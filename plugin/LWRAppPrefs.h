#pragma once

#include "CPMUnknown.h"
#include "IPMStream.h"
#include "plugin/ILWRAppPrefs.h"

namespace linewright {

/** Keeps the block in host memory and, as a size and its bytes, in the application database. */
class LWRAppPrefs : public CPMUnknown<ILWRAppPrefs> {
  public:
    using CPMUnknown::CPMUnknown;
    ~LWRAppPrefs() override;

    uint8* CopyBlock(uint32* size) const override;
    void SetBlock(const uint8* block, uint32 size) override;

    /** Reads from or writes to the database's stream: a 32-bit size, 0xFFFFFFFF for none, and the
     *  bytes. A stream that ends early, or whose size has no memory, leaves nothing stored. */
    void ReadWrite(IPMStream* stream, ImplementationID implementation);

  private:
    static constexpr uint32 kNoBlock = 0xFFFFFFFF;

    void Read(IPMStream& stream);
    void Forget();

    uint32 storedSize = kNoBlock;
    uint8* stored = nullptr;
};

}  // namespace linewright
