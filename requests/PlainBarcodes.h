#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "IMemoryService.h"
#include "PMString.h"
#include "requests/Service.h"
#include "types/WrittenType.h"

namespace linewright {

/** A barcode that was made and of which nothing is to be said. */
struct PlainBarcode {
    const BarcodeType& type;
    /** Valid until the next one is made. */
    std::string_view fontString;
};

/**
 * Makes barcode after barcode without an allocation of its own. Each is sent to the plug-in as
 * MakeBarcode sends it, but for one thing: plain ASCII, which converting from UTF-8 leaves as it
 * is, is sent without asking for the conversion. What comes back is set against the data.
 */
class PlainBarcodes {
  public:
    /** The service outlives this, and is not stopped before. */
    explicit PlainBarcodes(Service& service);
    PlainBarcodes(const PlainBarcodes&) = delete;
    PlainBarcodes& operator=(const PlainBarcodes&) = delete;
    ~PlainBarcodes();

    /** The barcode that MakeBarcode makes of the same with status 0 and no warning; nullopt where
     *  only MakeBarcode knows. */
    std::optional<PlainBarcode> Make(std::string_view writtenType, std::string_view data,
                                     uint8 checkCharacter, double ratio);

  private:
    /** A type as it was written, looked up once. */
    struct Known {
        std::string written;
        WrittenType type;
    };

    /** Has what follows sent with a type; false where no type is written so. */
    bool Choose(std::string_view written);
    void SetData(std::string_view data);

    Service& service;
    InterfacePtr<IMemoryService> memory;
    /** The block that came back last, for the next data if it is large enough. */
    void* block = nullptr;
    uint16 isRecognised = 0;
    PMString hint;
    LinewrightRequestParams params{};
    std::array<Known, 64> knownTypes;
    const Known* sent = nullptr;
};

}  // namespace linewright
