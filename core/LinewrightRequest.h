#pragma once

#include <cstddef>

#include "core/PString.h"

namespace linewright {

/** The requests of IORTALinewright. */
enum RequestCode : uint32 {
    /** Encodes a data block: params in and out, slots: block pointer, recognised, hint. */
    kEncodeRequest = 1100,
    /** typeName of the classic type at typeIndex 0 to 14. */
    kClassicTypeNameRequest = 1101,
    /** Opens the utility dialog. */
    kOpenDialogRequest = 1102,
    kNoOperationRequest = 1103,
    /** Display text and option flags of the current type at typeIndex 0 to 14, by slots 1 to 4. */
    kCurrentTypeRequest = 1104,
    /** Slot 2 receives the type name of the display text in slot 1. */
    kTypeNameRequest = 1105,
    /** Slot 2 receives the display text of the type name in slot 1; -1 when there is none. */
    kDisplayTextRequest = 1106,
};

/** The result of a request code that is not known. */
constexpr int32 kUnknownRequest = -1018;

struct LinewrightRequestParams;

/** What a caller hands to ProcessRequest. Shared with plug-ins built separately: fixed to the byte,
 *  little-endian. A pointer has a place of eight bytes, also where it fills but four. */
struct LinewrightRequest {
    int32 result;
    uint32 code;
    alignas(8) LinewrightRequestParams* params;
};
static_assert(offsetof(LinewrightRequest, result) == 0);
static_assert(offsetof(LinewrightRequest, code) == 4);
static_assert(offsetof(LinewrightRequest, params) == 8);
static_assert(sizeof(LinewrightRequest) == 16);

/** The parameter block. What is named `caller…` belongs to the caller and is not touched. */
struct LinewrightRequestParams {
    uint8 convertFromUtf8;
    uint8 checkCharacter;
    uint8 callerA[18];
    int16 typeIndex;
    uint8 callerB[78];
    uint32 dataLength;
    uint8 callerC[160];
    double ratio;
    uint8 callerD[312];
    alignas(8) void* slot1;
    alignas(8) void* slot2;
    alignas(8) void* slot3;
    alignas(8) void* slot4;
    alignas(8) uint8 callerE[288];
    PString typeName;
};
static_assert(offsetof(LinewrightRequestParams, convertFromUtf8) == 0);
static_assert(offsetof(LinewrightRequestParams, checkCharacter) == 1);
static_assert(offsetof(LinewrightRequestParams, typeIndex) == 20);
static_assert(offsetof(LinewrightRequestParams, dataLength) == 100);
static_assert(offsetof(LinewrightRequestParams, ratio) == 264);
static_assert(offsetof(LinewrightRequestParams, slot1) == 584);
static_assert(offsetof(LinewrightRequestParams, slot2) == 592);
static_assert(offsetof(LinewrightRequestParams, slot3) == 600);
static_assert(offsetof(LinewrightRequestParams, slot4) == 608);
static_assert(offsetof(LinewrightRequestParams, callerE) == 616);
static_assert(offsetof(LinewrightRequestParams, typeName) == 904);
static_assert(sizeof(LinewrightRequestParams) == 1160);

}  // namespace linewright
