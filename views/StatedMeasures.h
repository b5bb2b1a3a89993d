#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "views/DialogLayout.h"

namespace linewright {

// What texts and widgets measure where nothing can be asked: in pixels of a 96th of an inch, texts
// in DejaVu Sans of 9 points, which is among the wide faces of its kind, each character on a whole
// pixel.

/** The advance width of a text. A character that is not Latin-1 counts as an em, the "&" before a
 *  mnemonic as nothing. */
int StatedWidth(std::u32string_view text);

/** What a widget needs that shows these texts: its caption, or the items of a pop-up. */
LayoutSize StatedSize(host::WidgetKind kind, const std::vector<std::u32string>& texts);

/** The measures of a group, without a frame where it has no title. */
LayoutGroup StatedGroup(std::u32string_view title);

}  // namespace linewright
