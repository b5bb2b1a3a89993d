#include "library/Drawn.h"

namespace linewright {

linewright_status Draw(Opened& /*opened*/, linewright_text /*type*/, linewright_text /*data*/,
                       std::string_view /*format*/, const linewright_options& /*options*/,
                       const linewright_barcode*& /*barcode*/) {
    throw CallFailure{LINEWRIGHT_LEFT_OUT, "this library was built without what draws"};
}

linewright_status ReadBack(Opened& /*opened*/, linewright_text /*type*/, linewright_text /*data*/,
                           const linewright_options& /*options*/,
                           const linewright_barcode*& /*barcode*/) {
    throw CallFailure{LINEWRIGHT_LEFT_OUT, "this library was built without scanners"};
}

}  // namespace linewright
