#pragma once

#include "IPMUnknown.h"
#include "core/BarcodeTypeRegistry.h"

namespace linewright {

/** The type whose display text the utility dialog's pop-up shows; nullptr when there is none. */
const BarcodeTypeEntry* SelectedType(const IPMUnknown* dialog);

/** Describes the type that the pop-up shows and offers the options that it has. */
void ShowSelectedType(const IPMUnknown* dialog);

}  // namespace linewright
