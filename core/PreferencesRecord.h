#pragma once

#include <cstddef>

#include "BaseType.h"
#include "core/PString.h"

namespace linewright {

/** The user's preferences: this record lives as long as the plug-in and is, byte for byte, the
 *  content of the preferences file. Little-endian. */
struct LinewrightPrefsRecord {
    struct {
        uint8 length;
        char text[31];
    } signature;
    uint32 version;
    uint32 reservedWord;
    uint8 reservedA[8];
    PString lastData;
    int16 lastTypeIndex;
    uint8 showErrorAlerts;
    uint8 reservedB;
    uint16 code39CheckMode;
    uint8 code39UseAsterisk;
    uint8 reservedC;
    uint8 i2of5CheckDigit;
    uint8 reservedD;
    int16 msiFirstCheck;
    int16 msiSecondCheck;
    uint16 codabarStart;
    uint16 codabarStop;
    uint8 reservedE[2];
};
static_assert(offsetof(LinewrightPrefsRecord, signature) == 0);
static_assert(offsetof(LinewrightPrefsRecord, version) == 32);
static_assert(offsetof(LinewrightPrefsRecord, reservedWord) == 36);
static_assert(offsetof(LinewrightPrefsRecord, reservedA) == 40);
static_assert(offsetof(LinewrightPrefsRecord, lastData) == 48);
static_assert(offsetof(LinewrightPrefsRecord, lastTypeIndex) == 304);
static_assert(offsetof(LinewrightPrefsRecord, showErrorAlerts) == 306);
static_assert(offsetof(LinewrightPrefsRecord, reservedB) == 307);
static_assert(offsetof(LinewrightPrefsRecord, code39CheckMode) == 308);
static_assert(offsetof(LinewrightPrefsRecord, code39UseAsterisk) == 310);
static_assert(offsetof(LinewrightPrefsRecord, reservedC) == 311);
static_assert(offsetof(LinewrightPrefsRecord, i2of5CheckDigit) == 312);
static_assert(offsetof(LinewrightPrefsRecord, reservedD) == 313);
static_assert(offsetof(LinewrightPrefsRecord, msiFirstCheck) == 314);
static_assert(offsetof(LinewrightPrefsRecord, msiSecondCheck) == 316);
static_assert(offsetof(LinewrightPrefsRecord, codabarStart) == 318);
static_assert(offsetof(LinewrightPrefsRecord, codabarStop) == 320);
static_assert(offsetof(LinewrightPrefsRecord, reservedE) == 322);
static_assert(sizeof(LinewrightPrefsRecord) == 324);

constexpr uint32 kPreferencesVersion = 5;

/** What a user who has never chosen anything gets. */
constexpr LinewrightPrefsRecord kDefaultPreferences{
    .signature = {10, "Linewright"},
    .version = kPreferencesVersion,
    .reservedWord = 0,
    .reservedA = {},
    .lastData = {9, "Test Data"},
    .lastTypeIndex = 0,
    .showErrorAlerts = 1,
    .reservedB = 0,
    .code39CheckMode = 2,
    .code39UseAsterisk = 1,
    .reservedC = 0,
    .i2of5CheckDigit = 1,
    .reservedD = 0,
    .msiFirstCheck = 1,
    .msiSecondCheck = 0,
    .codabarStart = 'A',
    .codabarStop = 'D',
    .reservedE = {},
};

/** The live record, read at each call. The defaults until the file is loaded. */
extern constinit LinewrightPrefsRecord preferences;

}  // namespace linewright
