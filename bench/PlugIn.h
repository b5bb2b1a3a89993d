#pragma once

#include <string>
#include <string_view>

#include "IMemoryService.h"
#include "InterfacePtr.h"
#include "bench/Cases.h"
#include "core/IORTALinewright.h"
#include "core/LinewrightRequest.h"
#include "host/runtime/Host.h"

namespace linewright::bench {

/** A new folder for a host's files. */
std::string MakeFolder();

/** The stand-in host with the plug-in loaded, in folders of a scratch of its own. */
class PlugIn {
  public:
    PlugIn();
    PlugIn(const PlugIn&) = delete;
    PlugIn& operator=(const PlugIn&) = delete;
    ~PlugIn();

    /** What the following rows are of, and whether they are sent as UTF-8, which is a block more.
     */
    void Choose(const Case& benchCase, bool isUtf8 = false);

    /** Request 1100 as a caller makes it: a block for the row's data, the request, what comes back,
     *  and the block given back. `use` is called with the result. */
    template <class Use>
    void Request(const std::string& row, Use use) {
        auto* block = static_cast<uint8*>(memory->Allocate(static_cast<uint32>(row.size())));
        row.copy(reinterpret_cast<char*>(block), row.size());
        params.dataLength = static_cast<uint32>(row.size());
        params.slot1 = &block;
        Send();
        use(std::string_view(reinterpret_cast<const char*>(block), params.dataLength));
        memory->Deallocate(block);
    }

    /** The same by the encoders that are linked in, without the plug-in's border. */
    template <class Use>
    void Encode(const std::string& row, Use use) {
        auto* block = static_cast<uint8*>(memory->Allocate(static_cast<uint32>(row.size())));
        row.copy(reinterpret_cast<char*>(block), row.size());
        auto length = static_cast<uint32>(row.size());
        EncodeLinkedIn(block, length);
        use(std::string_view(reinterpret_cast<const char*>(block), length));
        memory->Deallocate(block);
    }

  private:
    void Send();
    void EncodeLinkedIn(uint8*& block, uint32& length);

    std::string folder;
    host::Host host;
    IORTALinewright* service = nullptr;
    IMemoryService* memory = nullptr;
    LinewrightRequestParams params{};
    uint16 recognised = 0;
};

}  // namespace linewright::bench
