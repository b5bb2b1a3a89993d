#include "cli/WarningWords.h"

#include <fmt/format.h>

#include "text/Readable.h"

namespace linewright {

namespace {

std::string Characters(const std::string& count) {
    return count == "1" ? "1 character" : count + " characters";
}

/** The first characters of so many. */
std::string Shown(const std::string& count, const std::string& utf8) {
    return fmt::format("\"{}\"{}", Readable(utf8), std::stoul(count) > kMostShown ? " …" : "");
}

}  // namespace

std::string Sentence(const Warning& warning) {
    const auto parameter = [&](std::size_t place) { return warning.parameters.at(place); };
    switch (warning.reason) {
        case WarningReason::kNotUtf8:
            return fmt::format("byte {} of the data is not valid UTF-8", parameter(0));
        case WarningReason::kAboveLatin1:
            return fmt::format("{} above U+00FF dropped: {}", Characters(parameter(0)),
                               Shown(parameter(0), parameter(1)));
        case WarningReason::kEmptyData: return "the data is empty";
        case WarningReason::kNoCode128Character:
            return fmt::format(
                "byte 0x{} does not print as \"{}\": Code 128 has no character for it",
                parameter(0), Readable(parameter(1)));
        case WarningReason::kDroppedByEncoder:
            return fmt::format("{} dropped by the encoder: {}", Characters(parameter(0)),
                               Shown(parameter(0), parameter(1)));
        case WarningReason::kCheckDigitReplaced:
            return fmt::format("the check digit {} was replaced by the computed one, {}",
                               parameter(0), parameter(1));
        case WarningReason::kAddOnCut:
            return fmt::format(
                "the add-on of the symbol is {}, not {}: data with both check digit and add-on "
                "loses its last digit",
                parameter(0), parameter(1));
        case WarningReason::kCode128SumOverflow:
            return "the data is too long for the check character, whose sum is kept in 16 bits: "
                   "scanners refuse the symbol";
        case WarningReason::kNoCode128Start:
            return "the encoder has no start character for data that begins so: no scanner finds "
                   "the symbol";
        case WarningReason::kFunctionOfSetB:
            return "byte 195 or 200 stands behind a control character, where it means something "
                   "else: scanners read on in the wrong set";
        case WarningReason::kNoUpcEForm:
            return "the number has no UPC-E form: it is printed in full with UPC-E's right guard, "
                   "which no scanner knows";
        case WarningReason::kNoUpcENumberSystem:
            return fmt::format(
                "UPC-E has no number system {}: the bars say number system 0 with the check digit "
                "of another number",
                parameter(0));
        case WarningReason::kOtherUpcEDigits:
            return fmt::format(
                "classic UPC-E prints the digits {}, which do not stand for this number",
                parameter(0));
        case WarningReason::kNoBars:
            return "this type gives digits for people to read, without bars";
        case WarningReason::kNoIdentifiers:
            return "GS1-128 wants GS1 application identifiers, as in \"(01)09501101530003\", and "
                   "the data has none";
        case WarningReason::kNotFourteenDigits:
            return fmt::format("ITF-14 has 14 digits, and the symbol has {}", parameter(0));
        case WarningReason::kBarsSay: return fmt::format("the bars say \"{}\"", parameter(0));
        case WarningReason::kDigitsSay:
            return fmt::format("the digits to be read say \"{}\"", parameter(0));
        case WarningReason::kNoSymbol:
            return "the bars are no symbol of this type: no scanner reads them";
    }
    return "";
}

}  // namespace linewright
