#include <cstring>
#include <iostream>
#include <string_view>

#include "CreateObject.h"
#include "IMemoryService.h"
#include "ISession.h"
#include "InterfacePtr.h"
#include "core/IORTALinewright.h"
#include "host/runtime/Host.h"

// Sends one encode request to the plug-in whose file is named.

namespace {

using namespace linewright;

void Encode(std::string_view type, std::string_view data) {
    const InterfacePtr<IMemoryService> memory(GetExecutionContextSession(), UseDefaultIID());
    const InterfacePtr<IORTALinewright> service(
        static_cast<IORTALinewright*>(CreateObject(kLinewrightServiceBoss, IID_IORTALINEWRIGHT)));
    void* block = memory->Allocate(static_cast<uint32>(data.size()));
    std::memcpy(block, data.data(), data.size());
    uint16 isRecognised = 0;
    LinewrightRequestParams params{};
    params.dataLength = static_cast<uint32>(data.size());
    params.ratio = 2.0;
    params.slot1 = &block;
    params.slot2 = &isRecognised;
    params.typeName.length = static_cast<uint8>(type.size());
    std::memcpy(params.typeName.text, type.data(), type.size());
    LinewrightRequest request{.result = 0, .code = kEncodeRequest, .params = &params};
    {
        const host::Call call;
        service->ProcessRequest(&request);
    }
    std::cout << std::string_view(static_cast<char*>(block), params.dataLength) << '\n';
    memory->Deallocate(block);
}

}  // namespace

int main(int count, char** words) {
    host::Host host;
    if (count != 2 || !host.Start({.plugin = words[1]})) {
        std::cerr << host.Error() << '\n';
        return 1;
    }
    Encode("_QVT_BARCODE_EAN13_", "400638133393");
    host.Stop();
    return 0;
}
