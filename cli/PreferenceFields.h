#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/PreferencesRecord.h"

namespace linewright {

/** A value that a preference can have, and its word. */
struct PreferenceValue {
    int32 number;
    std::string_view word;
};

/** One preference that can be set: how it is read and written in a record, and its values. */
struct PreferenceField {
    std::string_view name;
    int32 (*get)(const LinewrightPrefsRecord& record);
    void (*set)(LinewrightPrefsRecord& record, int32 number);
    std::vector<PreferenceValue> values;

    /** What a record has here, in words; a number that has no word as it is. */
    std::string Text(const LinewrightPrefsRecord& record) const;
    /** The number for a word, or for itself in digits; none for what is not among the values. */
    std::optional<int32> Number(std::string_view text) const;
    /** The words of all values, for people. */
    std::string Choice() const;
};

/** The preferences in the order of the record. */
const std::vector<PreferenceField>& PreferenceFields();

/** Changes a record by texts of the form NAME=VALUE: all of them or, throwing Failure for one that
 *  names no preference or no value of it, none. */
void SetPreferences(LinewrightPrefsRecord& record, const std::vector<std::string>& assignments);

}  // namespace linewright
