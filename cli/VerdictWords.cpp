#include "cli/VerdictWords.h"

namespace linewright {

std::string VerdictWords(const Verification& verification) {
    switch (verification.verdict) {
        case Verdict::kScans: return "scans";
        case Verdict::kDoesNotScan: return "does not scan";
        case Verdict::kNoScanner: return "no scanner for this symbology";
        case Verdict::kScansAs: break;
    }
    const Reading* const other = verification.Other();
    return "scans as " + (other == nullptr ? "" : ShownData(*other));
}

}  // namespace linewright
