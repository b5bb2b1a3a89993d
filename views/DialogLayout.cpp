#include "views/DialogLayout.h"

#include <algorithm>

namespace linewright {

using host::WidgetKind;
using host::WidgetPlace;

namespace {

constexpr int kMargin = 16;
constexpr int kGroupSpacing = 16;
constexpr int kColumnSpacing = 12;
constexpr int kRowSpacing = 8;

bool FillsItsColumn(WidgetKind kind) {
    return kind != WidgetKind::kCheckBox && kind != WidgetKind::kLabel;
}

/** What a group takes around its rows. */
LayoutGroup Surrounded(LayoutGroup group) {
    if (!group.isFramed) return group;
    group.left += kColumnSpacing;
    group.top += kRowSpacing;
    group.right += kColumnSpacing;
    group.bottom += kColumnSpacing;
    return group;
}

class Column {
  public:
    Column(const std::vector<LayoutGroup>& layoutGroups,
           const std::vector<LayoutWidget>& layoutWidgets)
        : groups(layoutGroups), widgets(layoutWidgets) {
        // Labels of all groups have one width, so that what they name begins at one line.
        for (const LayoutWidget& widget : widgets)
            if (widget.kind == WidgetKind::kLabel && !widget.place.spansRow)
                labelWidth = std::max(labelWidth, widget.size.width);
    }

    DialogLayout Place(LayoutSize atLeast) {
        layout.size.width = std::max(NeededWidth(), atLeast.width);
        PlaceAll(0);
        const int heightLeft = atLeast.height - layout.size.height;
        if (heightLeft > 0) PlaceAll(heightLeft);
        return layout;
    }

  private:
    int NeededWidth() const {
        int needed = -kRowSpacing;
        for (const LayoutWidget& widget : widgets)
            if (widget.place.group == WidgetPlace::kButtonRow)
                needed += widget.size.width + kRowSpacing;
        for (const LayoutGroup& group : groups) needed = std::max(needed, group.minimumWidth);
        for (const LayoutWidget& widget : widgets) {
            if (widget.place.group == WidgetPlace::kButtonRow) continue;
            const LayoutGroup around = Surrounded(GroupOf(widget));
            needed =
                std::max(needed, around.left + Indent(widget) + widget.size.width + around.right);
        }
        return needed + 2 * kMargin;
    }

    const LayoutGroup& GroupOf(const LayoutWidget& widget) const {
        return groups[static_cast<std::size_t>(widget.place.group)];
    }

    int Indent(const LayoutWidget& widget) const {
        return widget.place.column == 0 ? 0 : labelWidth + kColumnSpacing;
    }

    void PlaceAll(int spareHeight) {
        layout.groups.clear();
        layout.widgets.clear();
        spare = spareHeight;
        top = kMargin;
        auto next = widgets.begin();
        for (const LayoutGroup& group : groups) {
            LayoutBox box{kMargin, top, layout.size.width - 2 * kMargin, 0};
            const LayoutGroup around = Surrounded(group);
            const auto number = static_cast<int32>(layout.groups.size());
            top += around.top;
            while (next != widgets.end() && next->place.group == number)
                next =
                    PlaceRow(next, box.left + around.left, box.width - around.left - around.right);
            top += around.bottom - kRowSpacing;
            box.height = top - box.top;
            layout.groups.push_back(box);
            top += kGroupSpacing;
        }
        PlaceButtons(next);
        layout.size.height = top + kMargin;
    }

    using Widgets = std::vector<LayoutWidget>::const_iterator;

    /** Returns the first widget of the row behind. */
    Widgets PlaceRow(Widgets first, int left, int width) {
        const auto last = std::find_if(first, widgets.end(), [&](const LayoutWidget& widget) {
            return widget.place.group != first->place.group || widget.place.row != first->place.row;
        });
        int height = 0;
        for (auto widget = first; widget != last; ++widget)
            height =
                std::max(height, widget->size.height + (TakesHeight(widget->kind) ? spare : 0));
        for (auto widget = first; widget != last; ++widget) {
            const int indent = Indent(*widget);
            LayoutBox box{left + indent, top, widget->size.width, widget->size.height};
            if (FillsItsColumn(widget->kind)) box.width = width - indent;
            if (TakesHeight(widget->kind)) box.height = height;
            box.top += (height - box.height) / 2;
            layout.widgets.push_back(box);
        }
        top += height + kRowSpacing;
        return last;
    }

    void PlaceButtons(Widgets first) {
        const auto onTheRight = std::find_if(
            first, widgets.end(), [](const LayoutWidget& widget) { return widget.isDefault; });
        int left = kMargin;
        int height = 0;
        for (auto button = first; button != widgets.end(); ++button) {
            if (button == onTheRight)
                left = layout.size.width - kMargin + kRowSpacing - WidthFrom(button);
            layout.widgets.push_back({left, top, button->size.width, button->size.height});
            left += button->size.width + kRowSpacing;
            height = std::max(height, button->size.height);
        }
        top += height;
    }

    int WidthFrom(Widgets button) const {
        int width = 0;
        for (; button != widgets.end(); ++button) width += button->size.width + kRowSpacing;
        return width;
    }

    const std::vector<LayoutGroup>& groups;
    const std::vector<LayoutWidget>& widgets;
    int labelWidth = 0;
    int spare = 0;
    int top = 0;
    DialogLayout layout;
};

}  // namespace

DialogLayout LayOut(const std::vector<LayoutGroup>& groups,
                    const std::vector<LayoutWidget>& widgets, LayoutSize atLeast) {
    return Column(groups, widgets).Place(atLeast);
}

bool TakesHeight(WidgetKind kind) {
    return kind == WidgetKind::kDescription;
}

}  // namespace linewright
