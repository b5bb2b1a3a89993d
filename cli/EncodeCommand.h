#pragma once

#include <optional>
#include <string>

#include "cli/Console.h"
#include "requests/BarcodeOutcome.h"

namespace linewright {

struct EncodeOptions {
    enum class Form { kText, kJson, kHex, kRaw };

    std::string type;
    /** "-" reads standard input. */
    std::string data;
    bool isCheckWanted = false;
    std::optional<double> ratio;
    bool isBytes = false;
    bool isStrict = false;
    bool isArticleNumber = false;
    Form form = Form::kText;
};

/** What options ask for; reads standard input where they say so. */
BarcodeWish WishOf(const EncodeOptions& options, Console& console);

/** Warnings and a refusal, to standard error. */
void ReportOutcome(const BarcodeOutcome& outcome, Console& console);

/** Makes one barcode: the font string to standard output, warnings and refusals to standard error,
 *  kRefused for a refusal, of which the JSON form has an object too. */
ExitStatus RunEncode(Service& service, const EncodeOptions& options, Console& console);

}  // namespace linewright
