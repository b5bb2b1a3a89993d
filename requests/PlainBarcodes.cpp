#include "requests/PlainBarcodes.h"

#include <algorithm>
#include <cstring>

#include "ISession.h"
#include "meaning/PlainMeaning.h"
#include "requests/BarcodeOutcome.h"
#include "requests/RequestFailure.h"

namespace linewright {

namespace {

/** Longer data has no symbol that is looked at here. */
constexpr std::size_t kMaxLength = 255;

/** Some place for a text that is not empty. Texts that share one look types up more often. */
std::size_t PlaceOf(std::string_view text, std::size_t places) {
    const auto byteAt = [text](std::size_t place) {
        return static_cast<std::size_t>(static_cast<unsigned char>(text[place]));
    };
    const std::size_t last = text.size() - 1;
    return (text.size() * 31 + byteAt(0) * 7 + byteAt(last / 3) * 3 + byteAt(last) * 13) % places;
}

}  // namespace

PlainBarcodes::PlainBarcodes(Service& runService)
    : service(runService), memory(GetExecutionContextSession(), UseDefaultIID()) {
    if (!memory) throw RequestFailure(FailureReason::kNoMemory);
    params.slot1 = &block;
    params.slot2 = &isRecognised;
    params.slot3 = &hint;
}

PlainBarcodes::~PlainBarcodes() {
    memory->Deallocate(block);
}

bool PlainBarcodes::Choose(std::string_view written) {
    Known& known = knownTypes[PlaceOf(written, knownTypes.size())];
    if (known.written != written) {
        sent = nullptr;
        known = {std::string(written), FindWrittenType(written)};
    }
    const std::string_view name = SentTypeName(known.written, known.type.type);
    if (name.empty()) return false;
    params.typeName.length = static_cast<uint8>(name.size());
    std::copy(name.begin(), name.end(), params.typeName.text);
    sent = &known;
    return true;
}

void PlainBarcodes::SetData(std::string_view data) {
    const auto length = static_cast<uint32>(data.size());
    if (!block || !memory->Resize(block, length)) {
        memory->Deallocate(block);
        block = memory->Allocate(length);
        if (!block) throw RequestFailure(FailureReason::kNoMemory);
    }
    std::memcpy(block, data.data(), data.size());
    params.dataLength = length;
}

std::optional<PlainBarcode> PlainBarcodes::Make(std::string_view writtenType, std::string_view data,
                                                uint8 checkCharacter, double ratio) {
    if (writtenType.empty() || writtenType.size() > kMaxPStringLength || data.empty() ||
        data.size() > kMaxLength) {
        return std::nullopt;
    }
    if ((!sent || sent->written != writtenType) && !Choose(writtenType)) return std::nullopt;
    const WrittenType& type = sent->type;
    SetData(data);
    params.checkCharacter = checkCharacter;
    params.ratio = ratio;
    isRecognised = 0;
    const int32 status = service.Send(kEncodeRequest, params);
    if (status != 0) return std::nullopt;
    const EncodedBarcode barcode{
        .type = *type.type,
        .data = data,
        .isUtf8 = true,
        .isCheckWanted = checkCharacter != 0,
        .expectation = type.expectation,
        .fontString = {static_cast<const char*>(block), params.dataLength},
    };
    if (!IsPlain(barcode)) return std::nullopt;
    return PlainBarcode{barcode.type, barcode.fontString};
}

}  // namespace linewright
