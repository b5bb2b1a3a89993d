#pragma once

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "InterfacePtr.h"
#include "core/IORTALinewright.h"
#include "host/runtime/Host.h"

namespace linewright {

class HostBlock;

/** Where the host finds things, as UTF-8 texts; an empty one takes the host's default. */
struct HostOptions {
    std::string plugin{};
    std::string roamingFolder{};
    std::string appFolder{};
    std::string locale{};
    /** Who shows alerts and dialogs; nullptr for the console. Outlives the host. */
    host::FrontEnd* frontEnd = nullptr;
};

/** One encode request, as the plug-in gets it. */
struct EncodeRequest {
    /** At most 255 bytes. */
    std::string typeName;
    std::string data;
    bool isUtf8 = true;
    uint8 checkCharacter = 0;
    double ratio = 2.0;
};

/** What the plug-in answered. */
struct EncodeAnswer {
    int32 status = 0;
    bool isRecognised = false;
    /** The data block after the call: a font string, a marker, or the data left as it was. */
    std::string bytes;
    /** UTF-8. */
    std::string hint;
};

/** One row of the plug-in's types. Texts are UTF-8. */
struct TypeDescription {
    std::string typeName;
    std::string displayText;
    /** The option flags, which the plug-in states for its current types only. */
    std::optional<std::array<uint16, 3>> optionFlags;
};

/** The running plug-in in its host, and the requests that this program sends it. One at a time. */
class Service {
  public:
    /** Starts host and plug-in. Throws RequestFailure when that does not work. */
    explicit Service(const HostOptions& options);
    Service(const Service&) = delete;
    Service& operator=(const Service&) = delete;
    ~Service() = default;

    /** Lets go of the data as soon as the host has it. Throws RequestFailure when the host has no
     *  memory for it. */
    EncodeAnswer Encode(EncodeRequest request);
    /** The same, with the data kept, into an answer that has room from the last one. */
    void Encode(const EncodeRequest& request, EncodeAnswer& answer);
    /** All types in the plug-in's own order. */
    std::vector<TypeDescription> Types();

    /** Sends one request as it stands and returns its result. */
    int32 Send(RequestCode code, LinewrightRequestParams& params);

    /** Ends plug-in and host; nothing else is called afterwards. */
    host::Leaks Stop();

  private:
    /** The request for data that the host has already. */
    void Encode(HostBlock& data, const EncodeRequest& request, EncodeAnswer& answer);
    std::string ClassicTypeName(int16 index);
    std::string DisplayTextOf(const std::string& typeName);
    TypeDescription CurrentType(int16 index);

    host::Host host;
    std::optional<InterfacePtr<IORTALinewright>> plugIn;
};

}  // namespace linewright
