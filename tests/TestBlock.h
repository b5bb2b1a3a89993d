#pragma once

#include <string>

#include "core/DataBlock.h"
#include "core/HostMemory.h"
#include "core/PString.h"

namespace linewright {

/** A caller's data block, given back at the end. */
class TestBlock {
  public:
    explicit TestBlock(const std::string& text)
        : bytes(AllocBlock(static_cast<uint32>(text.size()))),
          length(static_cast<uint32>(text.size())) {
        CopyBytes(bytes, text.data(), length);
    }
    TestBlock(const TestBlock&) = delete;
    TestBlock& operator=(const TestBlock&) = delete;
    ~TestBlock() { FreeBlock(bytes); }

    DataBlock Data() { return {bytes, length}; }
    std::string Text() const { return {reinterpret_cast<const char*>(bytes), length}; }

    uint8* bytes;
    uint32 length;
};

inline PString MakePString(const std::string& text) {
    PString string{};
    string.length = static_cast<uint8>(text.copy(string.text, kMaxPStringLength));
    return string;
}

}  // namespace linewright
