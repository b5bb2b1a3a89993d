#include "host/runtime/Widget.h"

#include <algorithm>

#include "IBooleanControlData.h"
#include "IObserver.h"
#include "SysBeep.h"
#include "WidgetID.h"
#include "host/runtime/Dialog.h"
#include "host/runtime/Halt.h"
#include "host/runtime/HostText.h"

namespace host {

namespace {

bool HoldsText(WidgetKind kind) {
    return kind != WidgetKind::kCheckBox && kind != WidgetKind::kPopUp;
}

}  // namespace

Widget::Widget(Dialog& dialog, const WidgetResource& resource)
    : fDialog(dialog), fResource(resource), fText(resource.text.c_str()) {
    for (const std::string& key : resource.items) fItems.push_back({PMString(key.c_str())});
}

IPMUnknown* Widget::QueryInterface(PMIID interfaceID) const noexcept {
    IPMUnknown* const found =
        IsAbandoned() ? nullptr : const_cast<Widget*>(this)->Find(interfaceID);
    if (found) CountUp();
    return found;
}

IPMUnknown* Widget::Find(PMIID interfaceID) {
    const bool isPopUp = GetKind() == WidgetKind::kPopUp;
    switch (interfaceID) {
        case IID_IPMUNKNOWN: return this;
        case IID_ICONTROLVIEW: return &fView;
        case IID_ISUBJECT: return &fSubject;
        case IID_ITEXTCONTROLDATA: return HoldsText(GetKind()) ? &fTextData : nullptr;
        case IID_ITRISTATECONTROLDATA:
            return GetKind() == WidgetKind::kCheckBox ? &fTriStateData : nullptr;
        case IID_ISTRINGLISTCONTROLDATA: return isPopUp ? &fStringList : nullptr;
        case IID_IDROPDOWNLISTCONTROLLER: return isPopUp ? &fDropDownList : nullptr;
        default: return nullptr;
    }
}

ShownWidget* Widget::GetLabelled() const {
    return GetKind() == WidgetKind::kLabel ? const_cast<Widget*>(fNext) : nullptr;
}

PMString Widget::GetText() const {
    return GetKind() == WidgetKind::kPopUp ? GetItem(fSelected) : fText;
}

PMString Widget::GetItem(int32 item) const {
    return HasItem(item) ? fItems[static_cast<std::size_t>(item)].text : PMString();
}

bool Widget::IsItemEnabled(int32 item) const {
    return HasItem(item) && fItems[static_cast<std::size_t>(item)].isEnabled;
}

bool Widget::CanBeUsed(WidgetKind kind) const {
    return GetKind() == kind && IsVisible() && fIsEnabled && fDialog.IsOpen();
}

bool Widget::Type(const PMString& text) {
    if (!CanBeUsed(WidgetKind::kEditBox)) return false;
    const InterfacePtr<IPMUnknown> alive(&fDialog, IID_IPMUNKNOWN);
    const std::u32string typed = linewright::CharactersFromUtf8(ToUtf8(text));
    const std::u32string accepted = Accepted(typed);
    if (accepted != typed) SysBeep();
    Store(PlainText(linewright::Utf8FromCharacters(accepted)), true);
    return true;
}

std::u32string Widget::Accepted(std::u32string_view typed) const {
    const std::u32string old = linewright::CharactersFromUtf8(ToUtf8(fText));
    const std::size_t shorter = std::min(old.size(), typed.size());
    const auto front = static_cast<std::size_t>(
        std::mismatch(old.begin(), old.begin() + static_cast<std::ptrdiff_t>(shorter),
                      typed.begin())
            .first -
        old.begin());
    std::size_t back = 0;
    while (back < shorter - front && old[old.size() - 1 - back] == typed[typed.size() - 1 - back])
        ++back;
    std::u32string inserted(typed.substr(front, typed.size() - front - back));
    if (fResource.maxCharacter > 0)
        std::erase_if(inserted, [this](char32_t c) { return c > fResource.maxCharacter; });
    if (fResource.maxLength > 0) {
        const auto room = static_cast<std::size_t>(fResource.maxLength);
        inserted.resize(std::min(inserted.size(), room - std::min(room, front + back)));
    }
    std::u32string result(typed.substr(0, front));
    return result.append(inserted).append(typed.substr(typed.size() - back));
}

bool Widget::Tick(bool on) {
    if (!CanBeUsed(WidgetKind::kCheckBox)) return false;
    const InterfacePtr<IPMUnknown> alive(&fDialog, IID_IPMUNKNOWN);
    Store(on ? ITriStateControlData::kSelected : ITriStateControlData::kUnselected, true);
    return true;
}

bool Widget::Choose(int32 item) {
    if (!CanBeUsed(WidgetKind::kPopUp) || !IsItemEnabled(item)) return false;
    const InterfacePtr<IPMUnknown> alive(&fDialog, IID_IPMUNKNOWN);
    if (item != fSelected) Store(item, true);
    return true;
}

bool Widget::Press() {
    if (!CanBeUsed(WidgetKind::kButton)) return false;
    const InterfacePtr<IPMUnknown> alive(&fDialog, IID_IPMUNKNOWN);
    Notify(IID_IBOOLEANCONTROLDATA, kTrueStateMessage);
    return true;
}

void Widget::SetEnabled(bool isEnabled) {
    fIsEnabled = isEnabled;
    Changed();
}

void Widget::Store(const PMString& text, bool notify) {
    fText = text;
    fText.Translate();
    Changed();
    if (notify) Notify(IID_ITEXTCONTROLDATA, kTextChangeStateMessage);
}

void Widget::Store(ITriStateControlData::TriState state, bool notify) {
    fTriState = state;
    Changed();
    if (notify)
        Notify(IID_ITRISTATECONTROLDATA,
               state == ITriStateControlData::kSelected ? kTrueStateMessage : kFalseStateMessage);
}

void Widget::Store(int32 selected, bool notify) {
    fSelected = HasItem(selected) ? selected : -1;
    Changed();
    if (notify) Notify(IID_ISTRINGLISTCONTROLDATA, kPopupChangeStateMessage);
}

void Widget::Changed() {
    fDialog.TellChanged(*this);
}

void Widget::Notify(PMIID protocol, ClassID change) {
    const std::vector<Attachment> attached = fAttachments;
    for (const Attachment& attachment : attached) {
        // An observer before this one may have detached it.
        const bool isStillThere =
            std::find(fAttachments.begin(), fAttachments.end(), attachment) != fAttachments.end();
        if (attachment.protocol == protocol && isStillThere)
            attachment.observer->Update(change, &fSubject, protocol, nullptr);
    }
}

void Widget::Subject::AttachObserver(IObserver* observer, const PMIID& protocol) noexcept {
    auto& attachments = fWidget.fAttachments;
    const Attachment attachment{observer, protocol};
    if (std::find(attachments.begin(), attachments.end(), attachment) == attachments.end()) {
        attachments.push_back(attachment);
    } else if (kChecksRules) {
        Halt("an observer is attached twice");
    }
}

void Widget::Subject::DetachObserver(IObserver* observer, const PMIID& protocol) noexcept {
    if (std::erase(fWidget.fAttachments, Attachment{observer, protocol}) == 0 && kChecksRules)
        Halt("an observer is detached that is not attached");
}

void Widget::Text::SetString(const PMString& text, bool16, bool16 notify) noexcept {
    fWidget.Store(text, notify);
}

void Widget::TriStateData::SetState(TriState state, bool16, bool16 notify) noexcept {
    fWidget.Store(state, notify);
}

void Widget::StringList::Clear() noexcept {
    fWidget.fItems.clear();
    fWidget.Store(-1, false);
}

void Widget::StringList::AddString(const PMString& text, int32 index) noexcept {
    auto& items = fWidget.fItems;
    Item item{text};
    item.text.Translate();
    const int32 at = index >= 0 && index < fWidget.CountItems() ? index : fWidget.CountItems();
    items.insert(items.begin() + at, std::move(item));
    if (fWidget.fSelected >= at) ++fWidget.fSelected;
    fWidget.Changed();
}

void Widget::DropDownList::Select(int32 index, bool16, bool16 notify) noexcept {
    fWidget.Store(index, notify);
}

void Widget::DropDownList::EnableItem(int32 index, bool16 enable) noexcept {
    if (!fWidget.HasItem(index)) return;
    fWidget.fItems[static_cast<std::size_t>(index)].isEnabled = enable;
    fWidget.Changed();
}

}  // namespace host
