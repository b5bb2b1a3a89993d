#pragma once

#include <vector>

#include "host/runtime/ShownDialog.h"

namespace linewright {

// Where the widgets of a dialog stand, in pixels from its upper left corner. What they measure says
// whoever shows them.

struct LayoutSize {
    int width = 0;
    int height = 0;
};

struct LayoutBox {
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;

    bool operator==(const LayoutBox&) const = default;
};

/** A group. One without a frame measures nothing. */
struct LayoutGroup {
    bool isFramed = false;
    // What the frame takes at each side, its title included
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;
    /** What the frame needs for its title. */
    int minimumWidth = 0;
};

/** A widget that is visible. */
struct LayoutWidget {
    host::WidgetKind kind = host::WidgetKind::kLabel;
    host::WidgetPlace place;
    /** What it needs at least. */
    LayoutSize size;
    /** The button that does it. Those for more stand on its left, at the other side. */
    bool isDefault = false;
};

struct DialogLayout {
    LayoutSize size;
    std::vector<LayoutBox> groups;
    std::vector<LayoutBox> widgets;
};

/** The layout of widgets in tab order. It is as small as can be but for `atLeast`: what is wider
 *  widens all that fills its column, what is higher the description. */
DialogLayout LayOut(const std::vector<LayoutGroup>& groups,
                    const std::vector<LayoutWidget>& widgets, LayoutSize atLeast = {});

/** Whether a dialog with this widget has a use for more height than it needs. */
bool TakesHeight(host::WidgetKind kind);

}  // namespace linewright
