#pragma once

#include "PMTypes.h"

/** The protocol by which presses of a button are told. */
constexpr PMIID IID_IBOOLEANCONTROLDATA = 0x0F11;
