#include "core/ReplaceMarkers.h"

#include <initializer_list>

namespace linewright {

namespace {

void FillLowestMarker(PMString& message, const PMString& replacement) {
    for (const char* const text : {"^0", "^1", "^2", "^3"}) {
        PMString marker;
        marker.SetCString(text);
        const int32 position = message.IndexOfString(marker);
        if (position < 0) continue;
        message.Remove(position, 2);
        message.Insert(replacement, position);
        return;
    }
}

}  // namespace

void ReplaceMarkers(PMString& message, const PMString* first, const PMString* second,
                    const PMString* third, const PMString* fourth) {
    for (const PMString* const replacement : {first, second, third, fourth})
        if (replacement) FillLowestMarker(message, *replacement);
}

}  // namespace linewright
