#include "workbench/DialogWindow.h"

#include <QCloseEvent>
#include <QLabel>
#include <QPushButton>
#include <QResizeEvent>
#include <QScreen>
#include <QScrollBar>
#include <algorithm>
#include <utility>

#include "workbench/Text.h"

namespace linewright {

using host::ShownWidget;
using host::WidgetKind;
using host::WidgetPlace;

namespace {

/** What a window can have of a screen, with room for the frame that a window manager adds. */
QSize RoomOn(const QScreen& screen) {
    constexpr QSize kFrame(16, 48);
    return screen.availableSize() - kFrame;
}

QRect RectOf(const LayoutBox& box) {
    return {box.left, box.top, box.width, box.height};
}

/** What a view needs at least. */
LayoutSize NeededBy(const QWidget& view) {
    const QSize size = view.sizeHint().expandedTo(view.minimumSize());
    return {size.width(), size.height()};
}

LayoutGroup MeasuresOf(const QGroupBox* frame) {
    if (!frame) return {};
    const QMargins margins = frame->contentsMargins();
    return {.isFramed = true,
            .left = margins.left(),
            .top = margins.top(),
            .right = margins.right(),
            .bottom = margins.bottom(),
            .minimumWidth = frame->minimumSizeHint().width()};
}

}  // namespace

DialogWindow::DialogWindow(host::ShownDialog& shown, QSettings& userSettings,
                           std::function<void(const QString&)> cellsPasted, QWidget* parent)
    : QDialog(parent),
      dialog(&shown),
      settings(userSettings),
      resource(shown.GetResourceID()),
      hooks{.used = [this] { SetStale(true); },
            .pressed =
                [this](const ShownWidget& button) {
                    // What it does is to make the result anew.
                    if (dialog != nullptr && &button == dialog->GetDefaultButton()) SetStale(false);
                },
            .said = [this](const QString& sentence) { notice->setText(sentence); },
            .cellsPasted = std::move(cellsPasted)} {
    setObjectName(QStringLiteral("dialog%1").arg(resource));
    setWindowTitle(TextFromHost(shown.GetTitle()));
    setModal(shown.GetType() == IDialog::kMovableModal);
    notice = new QLabel(this);
    notice->setObjectName(QStringLiteral("notice"));
    notice->setTextFormat(Qt::PlainText);
    notice->hide();
    area = new QScrollArea(this);
    area->setFrameShape(QFrame::NoFrame);
    area->setFocusPolicy(Qt::NoFocus);
    area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    area->setWidget(new QWidget);
    area->widget()->installEventFilter(this);
    MakeFrames();
    MakeControls();
    NameControls();
    OrderTabs();
    Fit();
    resize(minimumSize());
    shown.SetListener(this);
    restoreGeometry(settings.value(PlaceKey()).toByteArray());
    KeepOnScreen();
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

void DialogWindow::MakeFrames() {
    for (int32 group = 0; group < dialog->CountGroups(); ++group) {
        const QString title = TextFromHost(dialog->GetGroupTitle(group));
        frames.push_back(title.isEmpty() ? nullptr : new QGroupBox(title, area->widget()));
        if (frames.back()) frames.back()->installEventFilter(this);
    }
}

QWidget* DialogWindow::ParentFor(const ShownWidget& widget) {
    const int32 group = widget.GetPlace().group;
    if (group == WidgetPlace::kButtonRow) return this;
    QWidget* const frame = frames[static_cast<std::size_t>(group)];
    return frame ? frame : area->widget();
}

void DialogWindow::MakeControls() {
    for (int32 i = 0; i < dialog->CountWidgets(); ++i) {
        ShownWidget* const shown = dialog->GetWidget(i);
        if (!shown->IsVisible()) continue;
        controls.emplace_back(shown,
                              MakeControl(*shown, ParentFor(*shown), hooks, RunningLocale()));
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
        if (QWidget* const inner = labelled->View()->focusProxy())
            inner->setAccessibleName(SpokenText(caption));
    }
}

DialogLayout DialogWindow::LayOutFor(QSize size) const {
    std::vector<LayoutGroup> groups;
    groups.reserve(frames.size());
    for (const QGroupBox* const frame : frames) groups.push_back(MeasuresOf(frame));
    std::vector<LayoutWidget> widgets;
    widgets.reserve(controls.size());
    for (const auto& [shown, control] : controls)
        widgets.push_back({shown->GetKind(), shown->GetPlace(), NeededBy(*control->View()),
                           shown == dialog->GetDefaultButton()});
    return LayOut(groups, widgets, {size.width(), size.height()});
}

/** Where something can be typed, what is said of it has a line below all else. */
int DialogWindow::NoticeHeight() const {
    const bool hasBoxes = std::any_of(controls.begin(), controls.end(), [](const auto& pair) {
        return pair.first->GetKind() == WidgetKind::kEditBox;
    });
    return hasBoxes ? 3 * notice->fontMetrics().height() / 2 : 0;
}

void DialogWindow::Fit() {
    if (!dialog) return;
    LayoutSize needed = LayOutFor({}).size;
    const int mostHigh = RoomOn(*screen()).height() - NoticeHeight();
    const bool isScrolled = needed.height > mostHigh;
    if (isScrolled) {
        needed = {.width = needed.width + area->verticalScrollBar()->sizeHint().width(),
                  .height = mostHigh};
    }
    const bool isSizable =
        isScrolled || std::any_of(controls.begin(), controls.end(), [](const auto& pair) {
            return TakesHeight(pair.first->GetKind());
        });
    setMinimumSize(needed.width, needed.height + NoticeHeight());
    if (!isSizable) setMaximumSize(minimumSize());
    setSizeGripEnabled(isSizable);
    Arrange();
}

/** What does not fit on a screen scrolls; what is done with a dialog stays in sight. */
void DialogWindow::Arrange() {
    if (!dialog) return;
    const int noticeHeight = NoticeHeight();
    const DialogLayout layout = LayOutFor(size() - QSize(0, noticeHeight));
    const int hidden = layout.size.height + noticeHeight - height();
    notice->setVisible(noticeHeight > 0);
    notice->setGeometry(noticeHeight / 2, height() - noticeHeight, width() - noticeHeight,
                        noticeHeight);
    for (std::size_t i = 0; i < frames.size(); ++i)
        if (frames[i]) frames[i]->setGeometry(RectOf(layout.groups[i]));
    int bodyHeight = layout.size.height;
    for (std::size_t i = 0; i < controls.size(); ++i) {
        QWidget* const view = controls[i].second->View();
        const QWidget* const parent = view->parentWidget();
        QRect place = RectOf(layout.widgets[i]);
        if (parent == this) {
            bodyHeight = std::min(bodyHeight, place.top());
            place.translate(0, -hidden);
        } else if (parent != area->widget()) {
            place.translate(-parent->pos());
        }
        view->setGeometry(place);
    }
    area->widget()->resize(layout.size.width, bodyHeight);
    area->setGeometry(0, 0, width(), bodyHeight - hidden);
}

bool DialogWindow::event(QEvent* event) {
    if (event->type() == QEvent::LayoutRequest) Fit();
    return QDialog::event(event);
}

bool DialogWindow::eventFilter(QObject* frame, QEvent* event) {
    if (event->type() == QEvent::LayoutRequest) Fit();
    return QDialog::eventFilter(frame, event);
}

void DialogWindow::resizeEvent(QResizeEvent* event) {
    QDialog::resizeEvent(event);
    Arrange();
}

void DialogWindow::OrderTabs() {
    QWidget* last = nullptr;
    for (const auto& [shown, control] : controls) {
        if (last) setTabOrder(last, control->View());
        last = control->View();
    }
    FocusFirst();
}

void DialogWindow::FocusFirst() {
    const auto find = [this](auto test) {
        const auto found = std::find_if(controls.begin(), controls.end(), test);
        return found == controls.end() ? nullptr : found->second->View();
    };
    QWidget* first =
        find([](const auto& pair) { return pair.first->GetKind() == WidgetKind::kEditBox; });
    if (first == nullptr) {
        first = find(
            [](const auto& pair) { return pair.second->View()->focusPolicy() != Qt::NoFocus; });
    }
    if (first != nullptr) first->setFocus();
}

void DialogWindow::SetStale(bool isStale) {
    for (const auto& [shown, control] : controls) control->SetStale(isStale);
}

/** A window that was placed on a larger screen comes back to this one, and a new one fits it. */
void DialogWindow::KeepOnScreen() {
    constexpr QSize kUsualSize(660, 620);
    const QRect room = screen()->availableGeometry();
    const bool isPlaced = settings.contains(PlaceKey());
    if (isSizeGripEnabled()) resize((isPlaced ? size() : kUsualSize).boundedTo(RoomOn(*screen())));
    if (isPlaced && !room.contains(geometry())) {
        move(std::clamp(x(), room.left(), std::max(room.left(), room.right() - width())),
             std::clamp(y(), room.top(), std::max(room.top(), room.bottom() - height())));
    }
}

QVariantMap DialogWindow::Content() const {
    QVariantMap content;
    for (const auto& [shown, control] : controls) {
        const QString id = QString::number(shown->GetID());
        switch (shown->GetKind()) {
            case WidgetKind::kEditBox: content[id] = TextFromHost(shown->GetText()); break;
            case WidgetKind::kCheckBox: content[id] = shown->GetState() != 0; break;
            case WidgetKind::kPopUp: content[id] = shown->GetSelected(); break;
            case WidgetKind::kResultBox: content[id] = control->FreshResult(); break;
            default: break;
        }
    }
    return content;
}

void DialogWindow::SetContent(const QVariantMap& content) {
    // In tab order: a type brings its options along.
    for (const auto& [shown, control] : controls) {
        const QVariant value = content.value(QString::number(shown->GetID()));
        if (!value.isValid()) continue;
        switch (shown->GetKind()) {
            case WidgetKind::kEditBox: shown->Type(TextForHost(value.toString())); break;
            case WidgetKind::kCheckBox: shown->Tick(value.toBool()); break;
            case WidgetKind::kPopUp: shown->Choose(value.toInt()); break;
            case WidgetKind::kResultBox: control->ShowResult(value.toString()); break;
            default: break;
        }
    }
}

QString DialogWindow::PlaceKey() const {
    return QStringLiteral("dialog%1/geometry").arg(resource);
}

}  // namespace linewright
