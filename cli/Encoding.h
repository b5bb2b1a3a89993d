#pragma once

#include <optional>
#include <string>
#include <vector>

#include "cli/Service.h"
#include "meaning/Meaning.h"

namespace linewright {

/** What became of one wish for a barcode. Texts are UTF-8. */
struct BarcodeOutcome {
    /** Whether there is a font string, in `bytes`. */
    bool isMade = false;
    /** The type name that was sent. */
    std::string typeName;
    /** The plug-in's status; none where it was not the plug-in that refused. */
    std::optional<int32> status;
    std::string bytes;
    /** Why it was refused: the plug-in's hint, or the words of its marker; "" when it was made. */
    std::string message;
    /** Only where the font string could be made. */
    Meaning meaning{};
    std::vector<std::string> warnings;
};

/** Makes a barcode for a person: `request.typeName` may be a short name. With `isStrict` a warning
 *  is a refusal. */
BarcodeOutcome MakeBarcode(Service& service, EncodeRequest request, bool isStrict);

/** Several sentences as one text. */
std::string Joined(const std::vector<std::string>& sentences);

}  // namespace linewright
