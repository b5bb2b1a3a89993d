#pragma once

#include <cstdint>

namespace linewright {

/** The keys of the plug-in's string tables for what is said of a type; nullptr for what is not. */
struct DescriptionKeys {
    const char* usage = nullptr;
    const char* data = nullptr;
    const char* sample = nullptr;
    const char* notes = nullptr;
};

/** The keys of the labels in front of them. */
inline constexpr DescriptionKeys kDescriptionLabels{
    "0x122100kLWRUtilityDialogUsageLabelKey", "0x122100kLWRUtilityDialogDataLabelKey",
    "0x122100kLWRUtilityDialogSampleLabelKey", "0x122100kLWRUtilityDialogNotesLabelKey"};

namespace descriptions {

/** What is said of one type or two; the second code is 0 where there is only one. */
struct Row {
    std::uint16_t codes[2];
    DescriptionKeys keys;
};

inline constexpr const char* kGeneralPurpose = "0x122100kLWRUtilityDialogGeneralPurposeUsageKey";
inline constexpr const char* kNumericOnly = "0x122100kLWRUtilityDialogNumericOnlyDataKey";
inline constexpr const char* kABC123 = "0x122100kLWRUtilityDialogABC123SampleKey";
inline constexpr const char* kABCabc123 = "0x122100kLWRUtilityDialogABCabc123SampleKey";
inline constexpr const char* kElevenDigits = "0x122100kLWRUtilityDialogElevenDigitSampleKey";
inline constexpr const char* kTwelveDigits = "0x122100kLWRUtilityDialogTwelveDigitSampleKey";

inline constexpr Row kRows[] = {
    {{1, 30},
     {"0x122100kLWRUtilityDialogPostnetUsageKey", kNumericOnly,
      "0x122100kLWRUtilityDialogPostnetSampleKey", "0x122100kLWRUtilityDialogPostnetNotesKey"}},
    {{2, 0},
     {"0x122100kLWRUtilityDialogUSPSIMUsageKey", "0x122100kLWRUtilityDialogUSPSIMDataKey",
      "0x122100kLWRUtilityDialogUSPSIMSampleKey", "0x122100kLWRUtilityDialogUSPSIMNotesKey"}},
    {{3, 20},
     {"0x122100kLWRUtilityDialogCodabarUsageKey", "0x122100kLWRUtilityDialogCodabarDataKey",
      "0x122100kLWRUtilityDialogCodabarSampleKey", "0x122100kLWRUtilityDialogCodabarNotesKey"}},
    {{4, 0},
     {kGeneralPurpose, "0x122100kLWRUtilityDialogAlphaNoLowerDataKey", kABC123,
      "0x122100kLWRUtilityDialogCode128ANotesKey"}},
    {{5, 22},
     {kGeneralPurpose, "0x122100kLWRUtilityDialogCode128BDataStringKey", kABCabc123,
      "0x122100kLWRUtilityDialogCode128BNotesKey"}},
    {{6, 0},
     {kGeneralPurpose, kNumericOnly, "0x122100kLWRUtilityDialogZeroThruNineSampleKey",
      "0x122100kLWRUtilityDialogCode128CNotesKey"}},
    {{7, 21},
     {kGeneralPurpose, "0x122100kLWRUtilityDialogCode39DataKey", kABC123,
      "0x122100kLWRUtilityDialogCode39NotesKey"}},
    // The string tables have the notes under "Code29".
    {{8, 0},
     {kGeneralPurpose, "0x122100kLWRUtilityDialogCode39ASCIIDataKey", kABCabc123,
      "0x122100kLWRUtilityDialogCode29ASCIINotesKey"}},
    {{9, 0},
     {"0x122100kLWRUtilityDialogEAN8UsageKey", "0x122100kLWRUtilityDialogEAN8DataKey",
      "0x122100kLWRUtilityDialogSevenDigitSampleKey", "0x122100kLWRUtilityDialogEAN8NotesKey"}},
    {{10, 23},
     {"0x122100kLWRUtilityDialogEAN13UsageKey", "0x122100kLWRUtilityDialogEAN13DataKey",
      kTwelveDigits, "0x122100kLWRUtilityDialogEAN13NotesKey"}},
    {{11, 24},
     {kGeneralPurpose, kNumericOnly, kTwelveDigits, "0x122100kLWRUtilityDialogI2OF5NotesKey"}},
    {{12, 25},
     {kGeneralPurpose, kNumericOnly, kTwelveDigits, "0x122100kLWRUtilityDialogI2OF5TEXTNotesKey"}},
    {{13, 26},
     {"0x122100kLWRUtilityDialogJAN13UsageKey", "0x122100kLWRUtilityDialogJAN13DataKey",
      kTwelveDigits, "0x122100kLWRUtilityDialogJAN13NotesKey"}},
    {{14, 27},
     {"0x122100kLWRUtilityDialogMSIPlesseyUsageKey", kNumericOnly,
      "0x122100kLWRUtilityDialogMSIPlesseySampleKey",
      "0x122100kLWRUtilityDialogMSIPlesseyNotesKey"}},
    {{15, 28},
     {"0x122100kLWRUtilityDialogUPCAUsageKey", "0x122100kLWRUtilityDialogUPCADataKey",
      kElevenDigits, "0x122100kLWRUtilityDialogUPCANotesKey"}},
    {{16, 29},
     {"0x122100kLWRUtilityDialogUPCEUsageKey", "0x122100kLWRUtilityDialogUPCEDataKey",
      kElevenDigits, "0x122100kLWRUtilityDialogUPCENotesKey"}},
};

}  // namespace descriptions

/** The keys of a type code; none for a code that has no type. */
constexpr DescriptionKeys DescriptionKeysOf(std::uint16_t code) {
    for (const auto& [codes, keys] : descriptions::kRows) {
        if (code != 0 && (codes[0] == code || codes[1] == code)) return keys;
    }
    return {};
}

}  // namespace linewright
