#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <string_view>

// GS1 application identifiers (GS1 General Specifications, sections 3.2 to 3.9 and 7.8.5).

namespace linewright::meaning {

/**
 * Identifiers from one to another, and what their values are: components with a blank between them.
 * A component is a character set ("n" digits, "x" set 82, "y" set 39, "z" set 64, "b" 0 and 1, and
 * "0" and "-" for themselves), its length ("6", or "..20" for 1 to 20) and perhaps a rule: "c" ends
 * with its check digit, "d" is a date of which the day may be 00, "D" a date with its day, "t" an
 * hour and perhaps a minute, "T" the same or 9999 for none, "m" a minute or second. From one with
 * "?" in front on a value may end.
 */
struct Gs1Identifiers {
    std::string_view first;
    std::string_view last;
    std::string_view format;
    /** The last digit is no higher. */
    char highestDigit = '9';
};

inline constexpr std::array kGs1Identifiers{
    // clang-format off
    // 0
    Gs1Identifiers{"00", "00", "n18c"},
    Gs1Identifiers{"01", "03", "n14c"},
    Gs1Identifiers{"10", "10", "x..20"},
    Gs1Identifiers{"11", "13", "n6d"},
    Gs1Identifiers{"15", "17", "n6d"},
    Gs1Identifiers{"20", "20", "n2"},
    Gs1Identifiers{"21", "22", "x..20"},
    Gs1Identifiers{"235", "235", "x..28"},
    Gs1Identifiers{"240", "241", "x..30"},
    Gs1Identifiers{"242", "242", "n..6"},
    // 10
    Gs1Identifiers{"243", "243", "x..20"},
    Gs1Identifiers{"250", "251", "x..30"},
    Gs1Identifiers{"253", "253", "n13c ?x..17"},
    Gs1Identifiers{"254", "254", "x..20"},
    Gs1Identifiers{"255", "255", "n13c ?n..12"},
    Gs1Identifiers{"30", "30", "n..8"},
    Gs1Identifiers{"3100", "3165", "n6", '5'},
    Gs1Identifiers{"3200", "3375", "n6", '5'},
    Gs1Identifiers{"3400", "3575", "n6", '5'},
    Gs1Identifiers{"3600", "3695", "n6", '5'},
    // 20
    Gs1Identifiers{"37", "37", "n..8"},
    Gs1Identifiers{"3900", "3909", "n..15"},
    Gs1Identifiers{"3910", "3919", "n3 n..15"},
    Gs1Identifiers{"3920", "3929", "n..15"},
    Gs1Identifiers{"3930", "3939", "n3 n..15"},
    Gs1Identifiers{"3940", "3943", "n4"},
    Gs1Identifiers{"3950", "3955", "n6"},
    Gs1Identifiers{"400", "401", "x..30"},
    Gs1Identifiers{"402", "402", "n17c"},
    Gs1Identifiers{"403", "403", "x..30"},
    // 30
    Gs1Identifiers{"410", "417", "n13c"},
    Gs1Identifiers{"420", "420", "x..20"},
    Gs1Identifiers{"421", "421", "n3 x..9"},
    Gs1Identifiers{"422", "422", "n3"},
    Gs1Identifiers{"423", "423", "n3 ?n3 ?n3 ?n3 ?n3"},
    Gs1Identifiers{"424", "424", "n3"},
    Gs1Identifiers{"425", "425", "n3 ?n3 ?n3 ?n3 ?n3"},
    Gs1Identifiers{"426", "426", "n3"},
    Gs1Identifiers{"427", "427", "x..3"},
    Gs1Identifiers{"4300", "4301", "x..35"},
    // 40
    Gs1Identifiers{"4302", "4306", "x..70"},
    Gs1Identifiers{"4307", "4307", "x2"},
    Gs1Identifiers{"4308", "4308", "x..30"},
    Gs1Identifiers{"4309", "4309", "n20"},
    Gs1Identifiers{"4310", "4311", "x..35"},
    Gs1Identifiers{"4312", "4316", "x..70"},
    Gs1Identifiers{"4317", "4317", "x2"},
    Gs1Identifiers{"4318", "4318", "x..20"},
    Gs1Identifiers{"4319", "4319", "x..30"},
    Gs1Identifiers{"4320", "4320", "x..35"},
    // 50
    Gs1Identifiers{"4321", "4323", "b1"},
    Gs1Identifiers{"4324", "4325", "n6d n4T"},
    Gs1Identifiers{"4326", "4326", "n6D"},
    Gs1Identifiers{"4330", "4333", "n6 ?-1"},
    Gs1Identifiers{"7001", "7001", "n13"},
    Gs1Identifiers{"7002", "7002", "x..30"},
    Gs1Identifiers{"7003", "7003", "n6D n4t"},
    Gs1Identifiers{"7004", "7004", "n..4"},
    Gs1Identifiers{"7005", "7005", "x..12"},
    Gs1Identifiers{"7006", "7006", "n6D"},
    // 60
    Gs1Identifiers{"7007", "7007", "n6D ?n6D"},
    Gs1Identifiers{"7008", "7008", "x..3"},
    Gs1Identifiers{"7009", "7009", "x..10"},
    Gs1Identifiers{"7010", "7010", "x..2"},
    Gs1Identifiers{"7011", "7011", "n6D ?n4t"},
    Gs1Identifiers{"7020", "7022", "x..20"},
    Gs1Identifiers{"7023", "7023", "x..30"},
    Gs1Identifiers{"7030", "7039", "n3 x..27"},
    Gs1Identifiers{"7040", "7040", "n1 x3"},
    Gs1Identifiers{"7041", "7041", "x..4"},
    // 70
    Gs1Identifiers{"710", "716", "x..20"},
    Gs1Identifiers{"7230", "7239", "x2 x..28"},
    Gs1Identifiers{"7240", "7240", "x..20"},
    Gs1Identifiers{"7241", "7241", "n2"},
    Gs1Identifiers{"7242", "7242", "x..25"},
    Gs1Identifiers{"7250", "7250", "n8D"},
    Gs1Identifiers{"7251", "7251", "n8D n4t"},
    Gs1Identifiers{"7252", "7252", "n1"},
    Gs1Identifiers{"7253", "7254", "x..40"},
    Gs1Identifiers{"7255", "7255", "x..10"},
    // 80
    Gs1Identifiers{"7256", "7256", "x..90"},
    Gs1Identifiers{"7257", "7257", "x..70"},
    Gs1Identifiers{"7258", "7258", "n1 x1 n1"},
    Gs1Identifiers{"7259", "7259", "x..40"},
    Gs1Identifiers{"8001", "8001", "n14"},
    Gs1Identifiers{"8002", "8002", "x..20"},
    Gs1Identifiers{"8003", "8003", "01 n13c ?x..16"},
    Gs1Identifiers{"8004", "8004", "x..30"},
    Gs1Identifiers{"8005", "8005", "n6"},
    Gs1Identifiers{"8006", "8006", "n14c n4"},
    // 90
    Gs1Identifiers{"8007", "8007", "x..34"},
    Gs1Identifiers{"8008", "8008", "n6D n2t ?n2m ?n2m"},
    Gs1Identifiers{"8009", "8009", "x..50"},
    Gs1Identifiers{"8010", "8010", "y..30"},
    Gs1Identifiers{"8011", "8011", "n..12"},
    Gs1Identifiers{"8012", "8012", "x..20"},
    Gs1Identifiers{"8013", "8014", "x..25"},
    Gs1Identifiers{"8017", "8018", "n18c"},
    Gs1Identifiers{"8019", "8019", "n..10"},
    Gs1Identifiers{"8020", "8020", "x..25"},
    // 100
    Gs1Identifiers{"8026", "8026", "n14c n4"},
    Gs1Identifiers{"8030", "8030", "z..90"},
    Gs1Identifiers{"8110", "8110", "x..70"},
    Gs1Identifiers{"8111", "8111", "n4"},
    Gs1Identifiers{"8112", "8112", "x..70"},
    Gs1Identifiers{"8200", "8200", "x..70"},
    Gs1Identifiers{"90", "90", "x..30"},
    Gs1Identifiers{"91", "99", "x..90"},
    // clang-format on
};
static_assert(std::is_sorted(kGs1Identifiers.begin(), kGs1Identifiers.end(),
                             [](const Gs1Identifiers& a, const Gs1Identifiers& b) {
                                 return a.last < b.first;
                             }));

/** How long the identifiers are that begin with the two digits that data begins with; 0 where there
 *  is none. */
constexpr std::size_t Gs1IdentifierLength(std::string_view data) {
    const auto row = std::find_if(kGs1Identifiers.begin(), kGs1Identifiers.end(),
                                  [first = data.substr(0, 2)](const Gs1Identifiers& known) {
                                      return known.first.substr(0, 2) <= first &&
                                             first <= known.last.substr(0, 2);
                                  });
    return row == kGs1Identifiers.end() ? 0 : row->first.size();
}

/** An identifier's row; nullptr for one that there is not. */
constexpr const Gs1Identifiers* FindGs1Identifier(std::string_view identifier) {
    const auto row = std::find_if(
        kGs1Identifiers.begin(), kGs1Identifiers.end(), [identifier](const Gs1Identifiers& known) {
            return identifier.size() == known.first.size() && known.first <= identifier &&
                   identifier <= known.last && identifier.back() <= known.highestDigit;
        });
    return row == kGs1Identifiers.end() ? nullptr : &*row;
}

/** How long identifier and value are together that need no separator, by the two digits that data
 *  begins with (figure 7.8.5-1); 0 for all others. */
constexpr std::size_t PredefinedElementLength(std::string_view data) {
    struct Row {
        std::string_view first;
        std::string_view last;
        std::size_t length;
    };
    constexpr std::array kRows{
        Row{"00", "00", 20}, Row{"01", "03", 16}, Row{"04", "04", 18}, Row{"11", "19", 8},
        Row{"20", "20", 4},  Row{"31", "36", 10}, Row{"41", "41", 16},
    };
    const std::string_view first = data.substr(0, 2);
    const auto row = std::find_if(kRows.begin(), kRows.end(), [first](const Row& known) {
        return known.first <= first && first <= known.last;
    });
    return row == kRows.end() ? 0 : row->length;
}

}  // namespace linewright::meaning
