#include "meaning/ArticleNumber.h"

#include <gtest/gtest.h>

#include "types/WrittenType.h"
#include "words/Words.h"

namespace linewright {

namespace {

struct Row {
    std::string_view type;
    std::string_view written;
    std::string_view data;
    /** The English sentence; "" for none. */
    std::string_view sentence;
};

constexpr Row kRows[]{
    // Numbers that have their type's form.
    {"ean13", "4006381333931", "4006381333931", ""},
    {"ean8", "96385074", "96385074", ""},
    {"upca", "036000291452", "036000291452", ""},
    {"upce", "04252614", "04252614", ""},
    {"i2of5", "09501101530003", "09501101530003", ""},
    {"classic-code128b", "4006381333931", "", "classic-code128b is no type of article numbers"},
    {"imb", "x", "", "imb is no type of article numbers"},

    // The same number in another type.
    {"ean13", "036000291452", "0036000291452",
     "GTIN-12 036000291452 was brought to the type's form: 0036000291452"},
    {"ean13", "04006381333931", "4006381333931",
     "GTIN-14 04006381333931 was brought to the type's form: 4006381333931"},
    {"jan13", "4 901234 567894", "4901234567894",
     "GTIN-13 4 901234 567894 was brought to the type's form: 4901234567894"},
    {"upca", "0036000291452", "036000291452",
     "GTIN-13 0036000291452 was brought to the type's form: 036000291452"},
    {"ean8", "00000096385074", "96385074",
     "GTIN-14 00000096385074 was brought to the type's form: 96385074"},
    {"upce", "042100005264", "04252614",
     "GTIN-12 042100005264 was brought to the type's form: 04252614"},
    {"itf-14", "4006381333931", "04006381333931",
     "GTIN-13 4006381333931 was brought to the type's form: 04006381333931"},
    {"i2of5-text", "96385074", "00000096385074",
     "GTIN-8 96385074 was brought to the type's form: 00000096385074"},
    {"code128", "4006381333931", "(01)04006381333931",
     "GTIN-13 4006381333931 was brought to the type's form: (01)04006381333931"},
    {"gs1-128", "19501101530000", "(01)19501101530000",
     "GTIN-14 19501101530000 was brought to the type's form: (01)19501101530000"},
    // The classic types take no check digit.
    {"classic-ean13", "4006381333931", "400638133393",
     "GTIN-13 4006381333931 was brought to the type's form: 400638133393"},
    {"classic-upca", "036000291452", "03600029145",
     "GTIN-12 036000291452 was brought to the type's form: 03600029145"},
    {"classic-upce", "01234565", "0123456",
     "UPC-E 01234565 was brought to the type's form: 0123456"},

    // Books and serials: 978 and 977 in front, the check digit of EAN-13 behind.
    {"ean13", "0-306-40615-2", "9780306406157",
     "ISBN-10 0-306-40615-2 was brought to the type's form: 9780306406157"},
    {"ean13", "080442957X", "9780804429573",
     "ISBN-10 080442957X was brought to the type's form: 9780804429573"},
    {"isbn", "978-0-306-40615-7", "9780306406157",
     "GTIN-13 978-0-306-40615-7 was brought to the type's form: 9780306406157"},
    {"issn", "0378-5955", "9770378595002",
     "ISSN 0378-5955 was brought to the type's form: 9770378595002"},
    {"issn", " 2434-561x ", "9772434561006",
     "ISSN 2434-561x was brought to the type's form: 9772434561006"},
    {"ean8", "9638 5074", "96385074", "GTIN-8 9638 5074 was brought to the type's form: 96385074"},

    // No form in the type.
    {"ean13", "19501101530000", "", "GTIN-14 19501101530000 has no form as ean13"},
    {"ean13", "96385074", "", "GTIN-8 96385074 has no form as ean13"},
    {"upca", "4006381333931", "", "GTIN-13 4006381333931 has no form as upca"},
    {"upca", "96385074", "", "GTIN-8 96385074 has no form as upca"},
    {"upca", "0-306-40615-2", "", "ISBN-10 0-306-40615-2 has no form as upca"},
    {"ean8", "4006381333931", "", "GTIN-13 4006381333931 has no form as ean8"},
    {"ean8", "0378-5955", "", "ISSN 0378-5955 has no form as ean8"},
    {"upce", "012345678905", "", "GTIN-12 012345678905 has no form as upce"},
    {"upce", "342100005265", "", "GTIN-12 342100005265 has no form as upce"},
    {"upce", "34252615", "", "UPC-E 34252615 has no form as upce"},

    // Wrong check digits.
    {"ean13", "4006381333937", "",
     "the check digit of GTIN-13 4006381333937 is 7, and should be 1"},
    {"ean8", "96385075", "", "the check digit of GTIN-8 96385075 is 5, and should be 4"},
    {"upce", "04252615", "", "the check digit of UPC-E 04252615 is 5, and should be 4"},
    {"code128", "09501101530004", "",
     "the check digit of GTIN-14 09501101530004 is 4, and should be 3"},
    {"isbn", "0-306-40615-X", "", "the check digit of ISBN-10 0-306-40615-X is X, and should be 2"},
    {"isbn", "0804429570", "", "the check digit of ISBN-10 0804429570 is 0, and should be X"},
    {"issn", "0378-5954", "", "the check digit of ISSN 0378-5954 is 4, and should be 5"},

    // No such number.
    {"ean13", "12345678905", "",
     "12345678905 is no article number: 8, 12, 13 or 14 digits, an ISBN or an ISSN"},
    {"ean13", "", "", " is no article number: 8, 12, 13 or 14 digits, an ISBN or an ISSN"},
    {"ean13", "978--0306406157", "",
     "978--0306406157 is no article number: 8, 12, 13 or 14 digits, an ISBN or an ISSN"},
    {"ean13", "-9780306406157", "",
     "-9780306406157 is no article number: 8, 12, 13 or 14 digits, an ISBN or an ISSN"},
    {"ean13", "400638133393X", "",
     "400638133393X is no article number: 8, 12, 13 or 14 digits, an ISBN or an ISSN"},
    {"ean13", "40063813339٣1", "",
     "40063813339٣1 is no article number: 8, 12, 13 or 14 digits, an ISBN or an ISSN"},
};

TEST(ArticleNumber, IsBroughtToTheFormOfItsTypeOrRefused) {
    for (const Row& row : kRows) {
        const ArticleNumber number = BringToForm(*FindWrittenType(row.type).type, row.written);
        EXPECT_EQ(number.data, row.data) << row.type << ' ' << row.written;
        EXPECT_EQ(number.finding ? Sentence(*number.finding, Language::kEnglish) : "", row.sentence)
            << row.type << ' ' << row.written;
    }
}

}  // namespace

}  // namespace linewright
