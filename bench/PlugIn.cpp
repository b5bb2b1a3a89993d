#include "bench/PlugIn.h"

#include <filesystem>
#include <random>
#include <stdexcept>

#include "CreateObject.h"
#include "ISession.h"
#include "core/BarcodeTypeRegistry.h"
#include "core/EncodeBarcodeData.h"
#include "core/PluginID.h"

namespace fs = std::filesystem;

namespace linewright::bench {

std::string MakeFolder() {
    const fs::path folder =
        fs::temp_directory_path() / ("linewright-bench-" + std::to_string(std::random_device()()));
    fs::create_directories(folder);
    return folder.string();
}

PlugIn::PlugIn() : folder(MakeFolder()) {
    if (!host.Start({.plugin = LINEWRIGHT_PLUGIN,
                     .roamingFolder = folder.c_str(),
                     .appFolder = folder.c_str()}))
        throw std::runtime_error(host.Error());
    BuildTypeRegistry();
    service =
        static_cast<IORTALinewright*>(CreateObject(kLinewrightServiceBoss, IID_IORTALINEWRIGHT));
    memory = static_cast<IMemoryService*>(
        GetExecutionContextSession()->QueryInterface(IID_IMEMORYSERVICE));
    if (!service || !memory) throw std::runtime_error("the plug-in has no service");
}

PlugIn::~PlugIn() {
    memory->Release();
    service->Release();
    host.Stop();
    fs::remove_all(folder);
}

void PlugIn::Choose(const Case& benchCase, bool isUtf8) {
    SetPString(params.typeName, benchCase.type);
    params.convertFromUtf8 = isUtf8;
    params.checkCharacter = benchCase.addCheck;
    params.ratio = kRatio;
    params.slot2 = &recognised;
}

void PlugIn::Send() {
    LinewrightRequest request{.result = 0, .code = kEncodeRequest, .params = &params};
    service->ProcessRequest(&request);
    if (request.result != 0 || !recognised) throw std::runtime_error("a row was refused");
}

void PlugIn::EncodeLinkedIn(uint8*& block, uint32& length) {
    const int16 status =
        EncodeBarcodeData(&block, params.typeName, &length, params.convertFromUtf8, &recognised,
                          params.checkCharacter, params.ratio, 0, nullptr, nullptr);
    if (status != 0 || !recognised) throw std::runtime_error("a row was refused");
}

}  // namespace linewright::bench
