#include "cli/PreferenceFields.h"

#include <fmt/format.h>

#include <algorithm>

#include "merge/Failure.h"
#include "text/Readable.h"

namespace linewright {

namespace {

using Record = LinewrightPrefsRecord;

template <auto Member>
PreferenceField MakeField(std::string_view name, std::vector<PreferenceValue> values) {
    using Number = std::remove_reference_t<decltype(std::declval<Record&>().*Member)>;
    return {
        .name = name,
        .get = [](const Record& record) -> int32 { return record.*Member; },
        .set = [](Record& record, int32 number) { record.*Member = static_cast<Number>(number); },
        .values = std::move(values),
    };
}

std::vector<PreferenceField> MakeFields() {
    const std::vector<PreferenceValue> yesNo{{0, "no"}, {1, "yes"}};
    const std::vector<PreferenceValue> msiChecks{{0, "none"}, {1, "mod10"}, {2, "mod11"}};
    const std::vector<PreferenceValue> letters{{'A', "A"}, {'B', "B"}, {'C', "C"}, {'D', "D"}};
    return {
        MakeField<&Record::showErrorAlerts>("showErrorAlerts", yesNo),
        MakeField<&Record::code39CheckMode>("code39CheckMode",
                                            {{0, "none"}, {1, "mod10"}, {2, "mod43"}}),
        MakeField<&Record::code39UseAsterisk>("code39UseAsterisk", yesNo),
        MakeField<&Record::i2of5CheckDigit>("i2of5CheckDigit", yesNo),
        MakeField<&Record::msiFirstCheck>("msiFirstCheck", msiChecks),
        MakeField<&Record::msiSecondCheck>("msiSecondCheck", msiChecks),
        MakeField<&Record::codabarStart>("codabarStart", letters),
        MakeField<&Record::codabarStop>("codabarStop", letters),
    };
}

/** One member of each row, one after the other. */
template <class Row>
std::string Listed(const std::vector<Row>& rows, std::string_view Row::*member) {
    std::string list;
    for (const Row& row : rows) {
        if (!list.empty()) list += ", ";
        list += row.*member;
    }
    return list;
}

const PreferenceField& FieldOf(std::string_view name) {
    const std::vector<PreferenceField>& fields = PreferenceFields();
    const auto found = std::find_if(fields.begin(), fields.end(),
                                    [name](const auto& field) { return field.name == name; });
    if (found != fields.end()) return *found;
    throw Failure(fmt::format("there is no preference \"{}\"; there are {}", Readable(name),
                              Listed(fields, &PreferenceField::name)));
}

void SetOne(Record& record, std::string_view assignment) {
    const std::size_t equals = assignment.find('=');
    if (equals == std::string_view::npos) {
        throw Failure(fmt::format("\"{}\" is not of the form NAME=VALUE", Readable(assignment)));
    }
    const PreferenceField& field = FieldOf(assignment.substr(0, equals));
    const std::string_view text = assignment.substr(equals + 1);
    const auto number = field.Number(text);
    if (!number) {
        throw Failure(fmt::format("{} cannot be \"{}\"; it can be {}", field.name, Readable(text),
                                  field.Choice()));
    }
    field.set(record, *number);
}

}  // namespace

std::string PreferenceField::Text(const LinewrightPrefsRecord& record) const {
    const int32 number = get(record);
    for (const PreferenceValue& value : values) {
        if (value.number == number) return std::string(value.word);
    }
    return std::to_string(number);
}

std::optional<int32> PreferenceField::Number(std::string_view text) const {
    for (const PreferenceValue& value : values) {
        if (text == value.word || text == std::to_string(value.number)) return value.number;
    }
    return std::nullopt;
}

std::string PreferenceField::Choice() const {
    return Listed(values, &PreferenceValue::word);
}

const std::vector<PreferenceField>& PreferenceFields() {
    static const std::vector<PreferenceField> fields = MakeFields();
    return fields;
}

void SetPreferences(LinewrightPrefsRecord& record, const std::vector<std::string>& assignments) {
    LinewrightPrefsRecord changed = record;
    for (const std::string& assignment : assignments) SetOne(changed, assignment);
    record = changed;
}

}  // namespace linewright
