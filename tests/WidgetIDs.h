#pragma once

#include "PMTypes.h"

namespace linewright {

// The widgets of both dialogs, as numbers: a test must notice when the code's own names move.

constexpr WidgetID kOKButton = 0x0F01;
constexpr WidgetID kCancelButton = 0x0F02;

constexpr WidgetID kType = 0x12211D;
constexpr WidgetID kData = 0x122119;
constexpr WidgetID kResult = 0x12211B;
constexpr WidgetID kDescription = 0x12211E;
constexpr WidgetID kCheckDigit = 0x122121;
constexpr WidgetID kRatioLabel = 0x122122;
constexpr WidgetID kRatio = 0x122123;
constexpr WidgetID kPreferencesButton = 0x122116;
constexpr WidgetID kSpareButton = 0x122115;

constexpr WidgetID kCode39Check = 0x122107;
constexpr WidgetID kCode39Asterisk = 0x122108;
constexpr WidgetID kI2of5CheckDigit = 0x12210B;
constexpr WidgetID kMsiFirstCheck = 0x12210F;
constexpr WidgetID kMsiSecondCheck = 0x122111;
constexpr WidgetID kShowErrorAlerts = 0x122102;

}  // namespace linewright
