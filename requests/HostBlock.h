#pragma once

#include <string_view>

#include "BaseType.h"
#include "IMemoryService.h"
#include "InterfacePtr.h"

namespace linewright {

/**
 * Barcode data in a block of the host's memory service, owned here before and after a request. A
 * request may free the block and put another in its place through the two references.
 */
class HostBlock {
  public:
    /** A block that holds a copy of `bytes`. Throws RequestFailure when the host has no memory for
     * it. */
    explicit HostBlock(std::string_view bytes);
    HostBlock(const HostBlock&) = delete;
    HostBlock& operator=(const HostBlock&) = delete;
    ~HostBlock();

    std::string_view Bytes() const { return {static_cast<const char*>(block), length}; }

    void* block = nullptr;
    uint32 length = 0;

  private:
    InterfacePtr<IMemoryService> memory;
};

}  // namespace linewright
