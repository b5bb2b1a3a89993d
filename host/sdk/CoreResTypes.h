#pragma once

#include "PMTypes.h"

// Widgets that mean the same in every dialog.

/** No widget in particular; from a validation: nothing is wrong. */
const WidgetID kDefaultWidgetId(0);
const WidgetID kOKButtonWidgetID(0x0F01);
const WidgetID kCancelButton_WidgetID(0x0F02);  // NOLINT(readability-identifier-naming)
