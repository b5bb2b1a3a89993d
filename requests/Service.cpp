#include "requests/Service.h"

#include <algorithm>

#include "CreateObject.h"
#include "PMString.h"
#include "host/runtime/HostText.h"
#include "requests/HostBlock.h"
#include "requests/RequestFailure.h"

namespace linewright {

namespace {

/** The places that requests 1101 and 1104 have for types of a family. */
constexpr int16 kPlacesOfFamily = 15;

const char* TextOrDefault(const std::string& text) {
    return text.empty() ? nullptr : text.c_str();
}

}  // namespace

Service::Service(const HostOptions& options) {
    const host::Settings settings{
        .plugin = TextOrDefault(options.plugin),
        .roamingFolder = TextOrDefault(options.roamingFolder),
        .appFolder = TextOrDefault(options.appFolder),
        .locale = TextOrDefault(options.locale),
        .frontEnd = options.frontEnd,
    };
    if (!host.Start(settings)) throw RequestFailure(FailureReason::kHost, host.Error());
    plugIn.emplace(
        static_cast<IORTALinewright*>(CreateObject(kLinewrightServiceBoss, IID_IORTALINEWRIGHT)));
    if (!*plugIn) throw RequestFailure(FailureReason::kNoService, options.plugin);
}

host::Leaks Service::Stop() {
    plugIn.reset();
    return host.Stop();
}

int32 Service::Send(RequestCode code, LinewrightRequestParams& params) {
    const host::Call call;
    LinewrightRequest request{.result = 0, .code = code, .params = &params};
    (*plugIn)->ProcessRequest(&request);
    return request.result;
}

EncodeAnswer Service::Encode(EncodeRequest request) {
    HostBlock data(request.data);
    std::string().swap(request.data);
    EncodeAnswer answer;
    Encode(data, request, answer);
    return answer;
}

void Service::Encode(const EncodeRequest& request, EncodeAnswer& answer) {
    HostBlock data(request.data);
    Encode(data, request, answer);
}

void Service::Encode(HostBlock& data, const EncodeRequest& request, EncodeAnswer& answer) {
    uint16 isRecognised = 0;
    PMString hint;
    LinewrightRequestParams params{};
    params.convertFromUtf8 = request.isUtf8 ? 1 : 0;
    params.checkCharacter = request.checkCharacter;
    params.dataLength = data.length;
    params.ratio = request.ratio;
    params.slot1 = &data.block;
    params.slot2 = &isRecognised;
    params.slot3 = &hint;
    const std::size_t nameLength =
        std::min<std::size_t>(request.typeName.size(), kMaxPStringLength);
    params.typeName.length = static_cast<uint8>(nameLength);
    std::copy_n(request.typeName.begin(), nameLength, params.typeName.text);
    answer.status = Send(kEncodeRequest, params);
    data.length = params.dataLength;
    answer.isRecognised = isRecognised != 0;
    answer.bytes = data.Bytes();
    answer.hint = host::ToUtf8(hint);
}

std::string Service::ClassicTypeName(int16 index) {
    LinewrightRequestParams params{};
    params.typeIndex = index;
    Send(kClassicTypeNameRequest, params);
    return std::string(params.typeName.View());
}

std::string Service::DisplayTextOf(const std::string& typeName) {
    PMString name;
    PMString displayText;
    name.SetCString(typeName.c_str());
    LinewrightRequestParams params{};
    params.slot1 = &name;
    params.slot2 = &displayText;
    Send(kDisplayTextRequest, params);
    return host::ToUtf8(displayText);
}

TypeDescription Service::CurrentType(int16 index) {
    PMString displayText;
    std::array<uint16, 3> flags{};
    LinewrightRequestParams params{};
    params.typeIndex = index;
    params.slot1 = &displayText;
    params.slot2 = &flags[0];
    params.slot3 = &flags[1];
    params.slot4 = &flags[2];
    Send(kCurrentTypeRequest, params);
    if (displayText.IsEmpty()) return {};

    PMString name;
    params.slot2 = &name;
    Send(kTypeNameRequest, params);
    return {host::ToUtf8(name), host::ToUtf8(displayText), flags};
}

std::vector<TypeDescription> Service::Types() {
    std::vector<TypeDescription> types;
    for (int16 index = 0; index < kPlacesOfFamily; ++index) {
        const std::string name = ClassicTypeName(index);
        if (!name.empty()) types.push_back({name, DisplayTextOf(name), std::nullopt});
    }
    for (int16 index = 0; index < kPlacesOfFamily; ++index) {
        TypeDescription type = CurrentType(index);
        if (type.optionFlags) types.push_back(std::move(type));
    }
    return types;
}

}  // namespace linewright
