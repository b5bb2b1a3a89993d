#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "PMTypes.h"

namespace linewright {

/** One thing that a user does. */
struct DialogStep {
    enum class Kind { kSet, kPress, kOK, kCancel, kOpen, kShow };

    Kind kind = Kind::kShow;
    /** The widget that is set or pressed, or the dialog that is opened. */
    uint32 id = 0;
    /** What a widget is set to, UTF-8: text; on or off; an item by its text or its number. */
    std::string value;
};

/** "0x12211D", or decimal; nothing for anything else. */
std::optional<uint32> ParseDialogID(std::string_view text);

/** `ID=VALUE`. Throws Failure. */
DialogStep ParseSetStep(const std::string& assignment);
/** `ID`. Throws Failure. */
DialogStep ParsePressStep(const std::string& id);

/**
 * A line of a script: an object with `set` (an id) and `value` (a text, a number or a boolean), or
 * with `press` (an id), `open` (250 or 251), or with `ok`, `cancel` or `show`, which are true.
 * Throws Failure.
 */
DialogStep ParseScriptStep(std::string_view line);

}  // namespace linewright
