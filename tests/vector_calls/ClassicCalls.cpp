#include "classic/Code128.h"
#include "classic/Code39.h"
#include "classic/EanUpc.h"
#include "classic/Interleaved2of5.h"
#include "classic/Msi.h"
#include "tests/TestBlock.h"
#include "tests/VectorCalls.h"

namespace linewright {

namespace {

template <typename Translate>
Outcome Translated(const Row& row, Translate translate) {
    PString string = MakePString(row.data);
    const int status = translate(string);
    return {.status = status, .result = std::string(string.View())};
}

/** The check digit, or nothing where there is none. */
template <typename Compute>
Outcome CheckDigitOf(const Row& row, Compute compute) {
    constexpr char kUntouched = '?';
    char check = kUntouched;
    const int status = compute(MakePString(row.data), check);
    return {.status = status, .result = std::string(check == kUntouched ? 0 : 1, check)};
}

const bool kRegistered = RegisterCalls({
    {"TranslateCode128A", [](const Row& row) { return Translated(row, TranslateCode128A); }},
    {"TranslateCode128B", [](const Row& row) { return Translated(row, TranslateCode128B); }},
    {"TranslateCode128C", [](const Row& row) { return Translated(row, TranslateCode128C); }},
    {"ExpandCode39FullAscii",
     [](const Row& row) { return Translated(row, ExpandCode39FullAscii); }},
    {"TranslateInterleaved2of5",
     [](const Row& row) {
         return Translated(row, [&](PString& string) {
             return TranslateInterleaved2of5(string, row.fields.At("checkDigit").get<bool>(),
                                             row.fields.At("textOnly").get<bool>());
         });
     }},
    {"MsiMod10", [](const Row& row) { return CheckDigitOf(row, MsiMod10); }},
    {"MsiMod11", [](const Row& row) { return CheckDigitOf(row, MsiMod11); }},
    {"AddOn2Parity", [](const Row& row) { return Outcome{.status = AddOn2Parity(row.data)}; }},
    {"AddOn5Parity", [](const Row& row) { return Outcome{.status = AddOn5Parity(row.data)}; }},
});

}  // namespace

}  // namespace linewright
