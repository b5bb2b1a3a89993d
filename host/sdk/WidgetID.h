#pragma once

#include "PMTypes.h"

// What observers of a widget are told.

/** A button was pressed, or a check box ticked. */
constexpr ClassID kTrueStateMessage = 0x0F01;
/** A check box was cleared. */
constexpr ClassID kFalseStateMessage = 0x0F02;
/** Another item of a pop-up list was chosen. */
constexpr ClassID kPopupChangeStateMessage = 0x0F03;
/** The text of an edit box changed. */
constexpr ClassID kTextChangeStateMessage = 0x0F04;
