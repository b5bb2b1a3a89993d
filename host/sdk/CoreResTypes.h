#pragma once

#include "PMTypes.h"

// Widgets that mean the same in every dialog.

/** No widget in particular; from a validation: nothing is wrong. */
constexpr WidgetID kDefaultWidgetId = 0;
constexpr WidgetID kOKButtonWidgetID = 0x0F01;
constexpr WidgetID kCancelButton_WidgetID = 0x0F02;  // NOLINT(readability-identifier-naming)
