#include "requests/PrintedText.h"

#include <gtest/gtest.h>

#include <string_view>
#include <utility>

#include "types/WrittenType.h"

namespace linewright {

namespace {

/** What is printed below a symbol that means something. */
std::string Printed(std::string_view type, std::string_view data, Meaning meaning = {}) {
    BarcodeOutcome outcome;
    outcome.type = FindWrittenType(type).type;
    outcome.meaning = std::move(meaning);
    BarcodeWish wish;
    wish.data = data;
    return PrintedText(outcome, wish);
}

std::string PrintedElements(std::string_view carried) {
    Meaning meaning;
    meaning.carried = carried;
    meaning.isGs1 = true;
    meaning.barsSay = "the bars";
    return Printed("code128", "the data", std::move(meaning));
}

TEST(PrintedText, HasGs1IdentifiersInBrackets) {
    constexpr std::pair<std::string_view, std::string_view> kRows[]{
        {"00340123450000000000", "(00)340123450000000000"},
        {"0109501101530003", "(01)09501101530003"},
        {"02095011015300033712", "(02)09501101530003(37)12"},
        {"010950110153000317251231"
         "10AB-123",
         "(01)09501101530003(17)251231(10)AB-123"},
        {"10AB-123\x1D"
         "217",
         "(10)AB-123(21)7"},
        {"11251231"
         "15251231",
         "(11)251231(15)251231"},
        {"2042"
         "22V1",
         "(20)42(22)V1"},
        {"235TPX\x1D"
         "240A1",
         "(235)TPX(240)A1"},
        {"2539501101530003X", "(253)9501101530003X"},
        {"30144\x1D"
         "10A",
         "(30)144(10)A"},
        {"3103001250"
         "3922199",
         "(3103)001250(3922)199"},
        {"39327561999", "(3932)7561999"},
        {"400PO1\x1D"
         "4149501101530003",
         "(400)PO1(414)9501101530003"},
        {"4149501101530003"
         "25401",
         "(414)9501101530003(254)01"},
        {"420NE1\x1D"
         "422276",
         "(420)NE1(422)276"},
        {"4307DE\x1D"
         "43211",
         "(4307)DE(4321)1"},
        {"70031412101400\x1D"
         "710123",
         "(7003)1412101400(710)123"},
        {"7230EMX", "(7230)EMX"},
        {"800309501101530003X7", "(8003)09501101530003X7"},
        {"80051234\x1D"
         "8200https://example.org",
         "(8005)1234(8200)https://example.org"},
        {"90A\x1D"
         "99B",
         "(90)A(99)B"},
    };
    for (const auto& [carried, printed] : kRows) EXPECT_EQ(PrintedElements(carried), printed);
}

TEST(PrintedText, SaysWhatTheBarsSayOfWhatIsNoListOfElements) {
    for (const std::string_view carried : {"29A", "1",
                                           "0109501101530003"
                                           "5",
                                           "10A\x1D"
                                           "6"}) {
        EXPECT_EQ(PrintedElements(carried), "the bars") << carried;
    }
}

TEST(PrintedText, HasIntelligentMailInItsGroups) {
    EXPECT_EQ(Printed("imb", "0123456709498765432101234567891"),
              "01 234 567094 987654321 01234567891");
    EXPECT_EQ(Printed("imb", "01234967094987654321"), "01 234 967094987 654321");
}

TEST(PrintedText, IsTheDataWhereTheBarsSayNothing) {
    EXPECT_EQ(Printed("code39", "A\x1B"), "A␛");
}

}  // namespace

}  // namespace linewright
