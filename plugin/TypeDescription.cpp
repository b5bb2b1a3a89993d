#include "plugin/TypeDescription.h"

namespace linewright {

namespace {

struct Texts {
    uint16 codes[2];  // 0 where there is only one
    const char* usage;
    const char* data;
    const char* sample;
    const char* notes;
};

constexpr const char* kGeneralPurpose = "0x122100kLWRUtilityDialogGeneralPurposeUsageKey";
constexpr const char* kNumericOnly = "0x122100kLWRUtilityDialogNumericOnlyDataKey";
constexpr const char* kABC123 = "0x122100kLWRUtilityDialogABC123SampleKey";
constexpr const char* kABCabc123 = "0x122100kLWRUtilityDialogABCabc123SampleKey";
constexpr const char* kElevenDigits = "0x122100kLWRUtilityDialogElevenDigitSampleKey";
constexpr const char* kTwelveDigits = "0x122100kLWRUtilityDialogTwelveDigitSampleKey";

constexpr Texts kTexts[] = {
    {{1, 30},
     "0x122100kLWRUtilityDialogPostnetUsageKey",
     kNumericOnly,
     "0x122100kLWRUtilityDialogPostnetSampleKey",
     "0x122100kLWRUtilityDialogPostnetNotesKey"},
    {{2, 0},
     "0x122100kLWRUtilityDialogUSPSIMUsageKey",
     "0x122100kLWRUtilityDialogUSPSIMDataKey",
     "0x122100kLWRUtilityDialogUSPSIMSampleKey",
     "0x122100kLWRUtilityDialogUSPSIMNotesKey"},
    {{3, 20},
     "0x122100kLWRUtilityDialogCodabarUsageKey",
     "0x122100kLWRUtilityDialogCodabarDataKey",
     "0x122100kLWRUtilityDialogCodabarSampleKey",
     "0x122100kLWRUtilityDialogCodabarNotesKey"},
    {{4, 0},
     kGeneralPurpose,
     "0x122100kLWRUtilityDialogAlphaNoLowerDataKey",
     kABC123,
     "0x122100kLWRUtilityDialogCode128ANotesKey"},
    {{5, 22},
     kGeneralPurpose,
     "0x122100kLWRUtilityDialogCode128BDataStringKey",
     kABCabc123,
     "0x122100kLWRUtilityDialogCode128BNotesKey"},
    {{6, 0},
     kGeneralPurpose,
     kNumericOnly,
     "0x122100kLWRUtilityDialogZeroThruNineSampleKey",
     "0x122100kLWRUtilityDialogCode128CNotesKey"},
    {{7, 21},
     kGeneralPurpose,
     "0x122100kLWRUtilityDialogCode39DataKey",
     kABC123,
     "0x122100kLWRUtilityDialogCode39NotesKey"},
    // The string tables have the notes under "Code29".
    {{8, 0},
     kGeneralPurpose,
     "0x122100kLWRUtilityDialogCode39ASCIIDataKey",
     kABCabc123,
     "0x122100kLWRUtilityDialogCode29ASCIINotesKey"},
    {{9, 0},
     "0x122100kLWRUtilityDialogEAN8UsageKey",
     "0x122100kLWRUtilityDialogEAN8DataKey",
     "0x122100kLWRUtilityDialogSevenDigitSampleKey",
     "0x122100kLWRUtilityDialogEAN8NotesKey"},
    {{10, 23},
     "0x122100kLWRUtilityDialogEAN13UsageKey",
     "0x122100kLWRUtilityDialogEAN13DataKey",
     kTwelveDigits,
     "0x122100kLWRUtilityDialogEAN13NotesKey"},
    {{11, 24},
     kGeneralPurpose,
     kNumericOnly,
     kTwelveDigits,
     "0x122100kLWRUtilityDialogI2OF5NotesKey"},
    {{12, 25},
     kGeneralPurpose,
     kNumericOnly,
     kTwelveDigits,
     "0x122100kLWRUtilityDialogI2OF5TEXTNotesKey"},
    {{13, 26},
     "0x122100kLWRUtilityDialogJAN13UsageKey",
     "0x122100kLWRUtilityDialogJAN13DataKey",
     kTwelveDigits,
     "0x122100kLWRUtilityDialogJAN13NotesKey"},
    {{14, 27},
     "0x122100kLWRUtilityDialogMSIPlesseyUsageKey",
     kNumericOnly,
     "0x122100kLWRUtilityDialogMSIPlesseySampleKey",
     "0x122100kLWRUtilityDialogMSIPlesseyNotesKey"},
    {{15, 28},
     "0x122100kLWRUtilityDialogUPCAUsageKey",
     "0x122100kLWRUtilityDialogUPCADataKey",
     kElevenDigits,
     "0x122100kLWRUtilityDialogUPCANotesKey"},
    {{16, 29},
     "0x122100kLWRUtilityDialogUPCEUsageKey",
     "0x122100kLWRUtilityDialogUPCEDataKey",
     kElevenDigits,
     "0x122100kLWRUtilityDialogUPCENotesKey"},
};

/** The texts of a code; without any for a code that has no type. */
Texts TextsOf(uint16 code) {
    for (const Texts& texts : kTexts)
        if (code != 0 && (texts.codes[0] == code || texts.codes[1] == code)) return texts;
    return {};
}

void AppendPart(PMString& description, const char* labelKey, const char* textKey) {
    description.Append(PMString(labelKey));
    if (textKey) description.Append(PMString(textKey));
}

}  // namespace

PMString DescribeType(uint16 code) {
    PMString description;
    if (code >= 17 && code <= 19) return description;
    const Texts texts = TextsOf(code);
    AppendPart(description, "0x122100kLWRUtilityDialogUsageLabelKey", texts.usage);
    AppendPart(description, "0x122100kLWRUtilityDialogDataLabelKey", texts.data);
    AppendPart(description, "0x122100kLWRUtilityDialogSampleLabelKey", texts.sample);
    AppendPart(description, "0x122100kLWRUtilityDialogNotesLabelKey", texts.notes);
    return description;
}

}  // namespace linewright
