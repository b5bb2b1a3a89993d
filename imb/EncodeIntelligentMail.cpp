#include "imb/EncodeIntelligentMail.h"

#include <array>

#include "core/CharClasses.h"
#include "core/Refusals.h"
#include "core/ReplaceMarkers.h"
#include "core/Status.h"
#include "imb/ImbBarMap.h"

namespace linewright {

namespace {

constexpr int32 kShortestData = kImbTrackingLength;
constexpr int32 kLongestData = kImbTrackingLength + kImbLongestRouting;

constexpr const char* kBadRoutingLength =
    "The Routing String is an invalid length. Must be 0, 5, 9, or 11 characters in length and "
    "contain all digits.";

int16 RefuseLength(DataBlock data, PMString* message) {
    if (message) {
        message->SetKey(hints::kBetween);
        PMString shortest;
        PMString longest;
        shortest.AsNumber(kShortestData);
        longest.AsNumber(kLongestData);
        ReplaceMarkers(*message, &shortest, &longest);
    }
    return FinishWith(data, kLengthError, kBadLength);
}

int16 RefuseCharacters(DataBlock data, PMString* message) {
    if (message) message->SetKey(hints::kDigitsOnly);
    return FinishWith(data, kDataError, kInvalidData);
}

/** The only refusal that leaves the data alone. */
int16 RefuseRouting(PMString* message) {
    if (message) message->SetCString(kBadRoutingLength);
    return kBadLength;
}

}  // namespace

int16 EncodeIntelligentMail(DataBlock data, PMString* message, PMString* humanReadable) {
    if (message) message->Clear();
    const auto length = static_cast<int32>(data.length);
    if (!IsInRange(length, kShortestData, kLongestData)) return RefuseLength(data, message);

    const std::string_view digits = data.View();
    const std::string_view routing = digits.substr(kImbTrackingLength);
    std::array<char, kImbBarCount + 1> bars;
    const ImbResult result = ImbEncode(digits.substr(0, kImbTrackingLength), routing, bars.data());
    // What is encoded is of digits and of a right length.
    if (result != USPS_FSB_ENCODER_API_SUCCESS) {
        if (!AreDigits(digits)) return RefuseCharacters(data, message);
        if (!IsImbRoutingLength(routing.size())) return RefuseRouting(message);
    }

    if (humanReadable) humanReadable->SetString(digits.data(), length);
    if (result == USPS_FSB_ENCODER_API_SUCCESS)
        return FinishWith(data, {bars.data(), kImbBarCount}, kEncoded);
    if (message) message->SetCString(ImbErrorMessage(result));
    return FinishWith(data, kProcessError, kInternalError);
}

const char* ImbErrorMessage(ImbResult result) {
    switch (result) {
        case USPS_FSB_ENCODER_API_BYTE_CONVERSION_FAILED:
            return "USPS_FSB_ENCODER_API_BYTE_CONVERSION_FAILED";
        case USPS_FSB_ENCODER_API_RETRIEVE_TABLE_FAILED:
            return "USPS_FSB_ENCODER_API_RETRIEVE_TABLE_FAILED";
        case USPS_FSB_ENCODER_API_CODEWORD_CONVERSION_FAILED:
            return "USPS_FSB_ENCODER_API_CODEWORD_CONVERSION_FAILED";
        case USPS_FSB_ENCODER_API_CHARACTER_RANGE_ERROR:
            return "USPS_FSB_ENCODER_API_CHARACTER_RANGE_ERROR";
        case USPS_FSB_ENCODER_API_TRACK_STRING_BAD_LENGTH:
            return "The Tracking String is an invalid length. Must be 20 characters in length and "
                   "contain all digits.";
        case USPS_FSB_ENCODER_API_TRACK_STRING_NOT_DIGITS:
            return "The Tracking String contains invalid data. All data values must be digits.";
        case USPS_FSB_ENCODER_API_TRACK_STRING_BAD_DIGIT2:
            return "The Tracking String contains invalid data. Must contain a value from 0 to 4 in "
                   "second data position.";
        case USPS_FSB_ENCODER_API_ROUTE_STRING_BAD_LENGTH: return kBadRoutingLength;
        case USPS_FSB_ENCODER_API_ROUTE_STRING_NOT_DIGITS:
            return "The Routing String contains invalid data. All data values must be digits.";
        default: return "Unknown USPS Intelligent Mail Barcode encoding error.";
    }
}

}  // namespace linewright
