#include <fmt/format.h>

#include "preflight/Preflight.h"
#include "scanners/Verification.h"
#include "text/Readable.h"

namespace linewright {

namespace {

/** "{0}" and "{1}" stand for the parameters. */
const char* WordsOf(Fault::Kind kind) {
    using Kind = Fault::Kind;
    switch (kind) {
        case Kind::kQuietLeft:
            return "the quiet zone on the left is {0} X wide, and should be {1} X";
        case Kind::kQuietRight:
            return "the quiet zone on the right is {0} X wide, and should be {1} X";
        case Kind::kXDimension:
            return "the X-dimension of {0} mm lies outside the symbology's {1} mm to {2} mm";
        case Kind::kWideBars: return "the bars are too wide, by {0} % of the X-dimension";
        case Kind::kNarrowBars: return "the bars are too narrow, by {0} % of the X-dimension";
        case Kind::kContrast:
            return "the contrast of bars and spaces in red light is {0} %, too low to print";
        case Kind::kGrade: return "the estimated grade is {0}, for its {1} of {2} %";
        case Kind::kCovered: return "something lies upon the bars: {0} % of them are seen";
        case Kind::kUnread: return "no scanner reads these bars";
        case Kind::kUnexpected: return "no row of the data encodes to this";
        case Kind::kOtherData: return "line {0} of the data ({1}) encodes to {2}";
        case Kind::kTwice: return "it stands here once more than the data has it; see line {0}";
        case Kind::kWrongPage: return "line {1} of the data wants it on page {0}";
        case Kind::kOtherSymbology: return "line {0} of the data wants {1}";
        case Kind::kMissing: return "line {0} of the data is missing: {1} {2}";
        case Kind::kRefusedRow: return "line {0} of the data is refused: {1}";
    }
    return "";
}

}  // namespace

std::string Sentence(const Fault& fault) {
    std::string sentence = WordsOf(fault.kind);
    for (std::size_t place = fault.parameters.size(); place-- > 0;) {
        const std::string mark = fmt::format("{{{}}}", place);
        const std::size_t at = sentence.find(mark);
        if (at != sentence.npos) {
            sentence.replace(at, mark.size(), Readable(fault.parameters[place]));
        }
    }
    return sentence;
}

std::string ShownData(const FoundSymbol& symbol) {
    const Reading& reading = symbol.reading;
    if (symbol.symbology != Symbology::kEanUpc) return ShownData(reading);
    std::string digits = reading.data;
    if (FormOf(reading) == EanUpcForm::kUpcE) {
        digits = reading.said;
    } else if (digits.size() == 13 && digits.starts_with('0')) {
        digits.erase(0, 1);
    }
    return reading.addOn.empty() ? digits : digits + " +" + reading.addOn;
}

}  // namespace linewright
