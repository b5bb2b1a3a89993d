#pragma once

#include <vector>

#include "CPMUnknown.h"
#include "IControlView.h"
#include "IDropDownListController.h"
#include "IStringListControlData.h"
#include "ISubject.h"
#include "ITextControlData.h"
#include "ITriStateControlData.h"
#include "host/runtime/Counted.h"
#include "host/runtime/ViewTable.h"

namespace host {

class Dialog;

/** A widget of a dialog: the state, the interfaces by which the plug-in reaches it, and what the
 *  user sees of it. The dialog outlives it. */
class Widget final : public IPMUnknown, public Counted, public ShownWidget {
  public:
    Widget(Dialog& dialog, const WidgetResource& resource);

    IPMUnknown* QueryInterface(PMIID interfaceID) const noexcept override;
    void AddRef() const noexcept override { CountUp(); }
    void Release() const noexcept override { CountDown(); }

    /** Not counted. */
    IControlView* View() { return &fView; }
    /** The widget behind this one in tab order, which a label names. */
    void SetNext(Widget* next) { fNext = next; }
    bool IsObserved() const { return !fAttachments.empty(); }

    WidgetID GetID() const override { return fResource.id; }
    WidgetKind GetKind() const override { return fResource.kind; }
    WidgetPlace GetPlace() const override { return fResource.place; }
    ShownWidget* GetLabelled() const override;
    bool IsVisible() const override { return fResource.isVisible; }
    bool IsEnabled() const override { return fIsEnabled; }
    PMString GetText() const override;
    int32 GetMaxLength() const override { return fResource.maxLength; }
    UTF32TextChar GetMaxCharacter() const override { return fResource.maxCharacter; }
    int32 GetState() const override { return fTriState; }
    int32 CountItems() const override { return static_cast<int32>(fItems.size()); }
    PMString GetItem(int32 item) const override;
    bool IsItemEnabled(int32 item) const override;
    int32 GetSelected() const override { return fSelected; }
    bool Type(const PMString& text) override;
    bool Tick(bool on) override;
    bool Choose(int32 item) override;
    bool Press() override;

  private:
    struct Item {
        PMString text;
        bool isEnabled = true;
    };
    struct Attachment {
        IObserver* observer;
        PMIID protocol;
        bool operator==(const Attachment&) const = default;
    };

    /** Base of the interfaces: they belong to the widget. */
    template <class IFace>
    class Face : public CPMUnknown<IFace> {
      public:
        explicit Face(Widget& widget) : CPMUnknown<IFace>(&widget), fWidget(widget) {}

      protected:
        Widget& fWidget;
    };
    class ControlView final : public Face<IControlView> {
      public:
        using Face::Face;
        WidgetID GetWidgetID() const noexcept override { return fWidget.fResource.id; }
        void Enable() noexcept override { fWidget.SetEnabled(true); }
        void Disable() noexcept override { fWidget.SetEnabled(false); }
    };
    class Subject final : public Face<ISubject> {
      public:
        using Face::Face;
        void AttachObserver(IObserver* observer, const PMIID& protocol) noexcept override;
        void DetachObserver(IObserver* observer, const PMIID& protocol) noexcept override;
    };
    class Text final : public Face<ITextControlData> {
      public:
        using Face::Face;
        const PMString& GetString() const noexcept override { return fWidget.fText; }
        void SetString(const PMString& text, bool16 invalidate, bool16 notify) noexcept override;
    };
    class TriStateData final : public Face<ITriStateControlData> {
      public:
        using Face::Face;
        TriState GetState() const noexcept override { return fWidget.fTriState; }
        void SetState(TriState state, bool16 invalidate, bool16 notify) noexcept override;
    };
    class StringList final : public Face<IStringListControlData> {
      public:
        using Face::Face;
        void Clear() noexcept override;
        void AddString(const PMString& text, int32 index) noexcept override;
        int32 Length() const noexcept override { return fWidget.CountItems(); }
        PMString GetString(int32 index) const noexcept override { return fWidget.GetItem(index); }
    };
    class DropDownList final : public Face<IDropDownListController> {
      public:
        using Face::Face;
        int32 GetSelected() const noexcept override { return fWidget.fSelected; }
        void Select(int32 index, bool16 invalidate, bool16 notify) noexcept override;
        void EnableItem(int32 index, bool16 enable) noexcept override;
    };

    ~Widget() override = default;
    IPMUnknown* Find(PMIID interfaceID);
    bool HasItem(int32 item) const { return item >= 0 && item < CountItems(); }
    bool CanBeUsed(WidgetKind kind) const;
    /** The text without what the box does not take of the part that replaces the old one. */
    std::u32string Accepted(std::u32string_view typed) const;

    void SetEnabled(bool isEnabled);
    void Store(const PMString& text, bool notify);
    void Store(ITriStateControlData::TriState state, bool notify);
    void Store(int32 selected, bool notify);
    void Changed();
    void Notify(PMIID protocol, ClassID change);

    Dialog& fDialog;
    const WidgetResource& fResource;
    const Widget* fNext = nullptr;
    bool fIsEnabled = true;
    PMString fText;
    ITriStateControlData::TriState fTriState = ITriStateControlData::kUnselected;
    std::vector<Item> fItems;
    int32 fSelected = -1;
    std::vector<Attachment> fAttachments;

    ControlView fView{*this};
    Subject fSubject{*this};
    Text fTextData{*this};
    TriStateData fTriStateData{*this};
    StringList fStringList{*this};
    DropDownList fDropDownList{*this};
};

}  // namespace host
