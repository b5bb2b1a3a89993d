#include "workbench/DialogWindow.h"

#include <QCloseEvent>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <algorithm>

#include "workbench/Text.h"

namespace linewright {

using host::ShownWidget;
using host::WidgetKind;
using host::WidgetPlace;

namespace {

// In pixels
constexpr int kMargin = 16;
constexpr int kGroupSpacing = 16;
constexpr int kColumnSpacing = 12;
constexpr int kRowSpacing = 8;

bool TakesRoom(const ShownWidget& widget) {
    return widget.GetKind() == WidgetKind::kDescription;
}

bool FillsItsColumn(const ShownWidget& widget) {
    return widget.GetKind() != WidgetKind::kCheckBox && widget.GetKind() != WidgetKind::kLabel;
}

}  // namespace

DialogWindow::DialogWindow(host::ShownDialog& shown, QSettings& userSettings, QWidget* parent)
    : QDialog(parent), dialog(&shown), settings(userSettings), resource(shown.GetResourceID()) {
    setObjectName(QStringLiteral("dialog%1").arg(resource));
    setWindowTitle(TextFromHost(shown.GetTitle()));
    setModal(shown.GetType() == IDialog::kMovableModal);
    MakeControls();
    NameControls();
    Arrange();
    OrderTabs();
    shown.SetListener(this);
    restoreGeometry(settings.value(PlaceKey()).toByteArray());
}

DialogWindow::~DialogWindow() {
    if (dialog) dialog->SetListener(nullptr);
}

QWidget* DialogWindow::FindView(WidgetID id) const {
    const Control* const control = dialog ? ControlOf(dialog->FindShown(id)) : nullptr;
    return control ? control->View() : nullptr;
}

std::vector<QWidget*> DialogWindow::Views() const {
    std::vector<QWidget*> views;
    for (const auto& [shown, control] : controls) views.push_back(control->View());
    return views;
}

void DialogWindow::reject() {
    if (dialog) dialog->PressCloseBox();
}

void DialogWindow::closeEvent(QCloseEvent* event) {
    reject();
    event->setAccepted(!dialog);
}

void DialogWindow::done(int result) {
    settings.setValue(PlaceKey(), saveGeometry());
    QDialog::done(result);
}

void DialogWindow::WidgetChanged(ShownWidget& widget) {
    if (Control* const control = ControlOf(&widget)) control->Show();
}

void DialogWindow::DialogClosed() {
    dialog = nullptr;
    done(0);
}

Control* DialogWindow::ControlOf(const ShownWidget* widget) const {
    const auto found = std::find_if(controls.begin(), controls.end(),
                                    [&](const auto& pair) { return pair.first == widget; });
    return found == controls.end() ? nullptr : found->second.get();
}

void DialogWindow::MakeControls() {
    for (int32 i = 0; i < dialog->CountWidgets(); ++i) {
        ShownWidget* const shown = dialog->GetWidget(i);
        if (!shown->IsVisible()) continue;
        controls.emplace_back(shown, MakeControl(*shown, this));
        controls.back().second->View()->setObjectName(
            QStringLiteral("widget%1").arg(shown->GetID(), 0, 16));
    }
    const Control* const defaultButton = ControlOf(dialog->GetDefaultButton());
    if (defaultButton) static_cast<QPushButton*>(defaultButton->View())->setDefault(true);
}

void DialogWindow::NameControls() {
    for (const auto& [shown, control] : controls) {
        const QString caption = TextFromHost(shown->GetText());
        if (shown->GetKind() == WidgetKind::kCheckBox || shown->GetKind() == WidgetKind::kButton)
            control->View()->setAccessibleName(SpokenText(caption));
        const Control* const labelled = ControlOf(shown->GetLabelled());
        if (!labelled) continue;
        static_cast<QLabel*>(control->View())->setBuddy(labelled->View());
        labelled->View()->setAccessibleName(SpokenText(caption));
    }
}

void DialogWindow::Arrange() {
    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    column->setSpacing(kGroupSpacing);
    for (int32 group = 0; group < dialog->CountGroups(); ++group)
        column->addLayout(ArrangeGroup(group));
    column->addLayout(ArrangeButtons());
    AlignColumns();
    const bool isSizable = std::any_of(controls.begin(), controls.end(),
                                       [](const auto& pair) { return TakesRoom(*pair.first); });
    column->setSizeConstraint(isSizable ? QLayout::SetMinimumSize : QLayout::SetFixedSize);
    setSizeGripEnabled(isSizable);
}

QLayout* DialogWindow::ArrangeGroup(int32 group) {
    auto* const grid = new QGridLayout;
    grids.push_back(grid);
    grid->setColumnStretch(1, 1);
    grid->setHorizontalSpacing(kColumnSpacing);
    grid->setVerticalSpacing(kRowSpacing);
    for (const auto& [shown, control] : controls) {
        const WidgetPlace place = shown->GetPlace();
        if (place.group != group) continue;
        const Qt::Alignment alignment =
            FillsItsColumn(*shown) ? Qt::Alignment() : Qt::AlignLeft | Qt::AlignVCenter;
        grid->addWidget(control->View(), place.row, place.column, 1, place.spansRow ? 2 : 1,
                        alignment);
        if (TakesRoom(*shown)) grid->setRowStretch(place.row, 1);
    }
    const QString title = TextFromHost(dialog->GetGroupTitle(group));
    if (title.isEmpty()) return grid;
    auto* const frame = new QGroupBox(title, this);
    frame->setLayout(grid);
    grid->setContentsMargins(kColumnSpacing, kRowSpacing, kColumnSpacing, kColumnSpacing);
    auto* const framed = new QVBoxLayout;
    framed->addWidget(frame);
    return framed;
}

QLayout* DialogWindow::ArrangeButtons() {
    auto* const row = new QHBoxLayout;
    row->setSpacing(kRowSpacing);
    bool isStretched = false;
    for (const auto& [shown, control] : controls) {
        if (shown->GetPlace().group != WidgetPlace::kButtonRow) continue;
        // Buttons for more stand on the left, the one that does it and those behind on the right.
        const bool isFirstOnTheRight = !isStretched && shown == dialog->GetDefaultButton();
        if (isFirstOnTheRight) row->addStretch();
        isStretched = isStretched || isFirstOnTheRight;
        row->addWidget(control->View());
    }
    return row;
}

/** Labels of all groups have one width, so that what they name begins at one line. */
void DialogWindow::AlignColumns() {
    int width = 0;
    for (const auto& [shown, control] : controls)
        if (shown->GetKind() == WidgetKind::kLabel && !shown->GetPlace().spansRow)
            width = std::max(width, control->View()->sizeHint().width());
    for (QGridLayout* const grid : grids)
        if (grid->itemAtPosition(0, 1) && !grid->itemAtPosition(0, 1)->isEmpty())
            grid->setColumnMinimumWidth(0, width);
}

void DialogWindow::OrderTabs() {
    QWidget* last = nullptr;
    for (const auto& [shown, control] : controls) {
        if (last) setTabOrder(last, control->View());
        last = control->View();
    }
    const auto first = std::find_if(controls.begin(), controls.end(), [](const auto& pair) {
        return pair.second->View()->focusPolicy() != Qt::NoFocus;
    });
    if (first != controls.end()) first->second->View()->setFocus();
}

QString DialogWindow::PlaceKey() const {
    return QStringLiteral("dialog%1/geometry").arg(resource);
}

}  // namespace linewright
