#include "CreateObject.h"
#include "IApplication.h"
#include "IControlView.h"
#include "IDialogMgr.h"
#include "IDropDownListController.h"
#include "IPanelControlData.h"
#include "ISession.h"
#include "IStringListControlData.h"
#include "ISubject.h"
#include "ITextControlData.h"
#include "ITriStateControlData.h"
#include "host/runtime/Menus.h"
#include "host/runtime/ShownDialog.h"
#include "tests/host/HostTest.h"

namespace {

using host::WidgetKind;

// A dialog whose class has nothing but what the host gives it.
constexpr std::string_view kViews = R"(plugin = 0x99000

[[boss]]
name = "kPlainDialogBoss"
class = 0x99006
base = "kDialogBoss"
interfaces = []

[[menu]]
text = "kMenu"
items = [{ text = "kRange", action = 0x99001 }]

[[dialog]]
id = 7
class = 0x99006
title = "kGreeting"
default = 0x0F01
cancel = 0x0F02
buttons = [{ kind = "button", id = 0x0F01 }, { kind = "button", id = 0x0F02 }]

[[dialog.group]]
title = "kGreeting"
rows = [
    [{ kind = "label", text = "kRange" }, { kind = "popUp", id = 0x99001, items = ["kA", "kB"] }],
    [{ kind = "checkBox", id = 0x99002, text = "kTick", column = 1 }],
]

[[dialog.group]]
rows = [[{ kind = "editBox", id = 0x99003, maxLength = 3, maxCharacter = 127 }]]
)";

constexpr RsrcType kView = FourCharCode('V', 'I', 'E', 'W');

class ViewTest : public StartedHostTest, public host::DialogListener {
  protected:
    void SetUp() override {
        WriteResource("views.toml", kViews);
        StartedHostTest::SetUp();
        frontEnd.opened = [this](host::ShownDialog& opened) {
            opened.SetListener(this);
            dialog = &opened;
        };
    }
    void WidgetChanged(host::ShownWidget&) override { ++changes; }
    void DialogClosed() override { dialog = nullptr; }

    IDialog* Create(const RsrcSpec& resource, IDialog::DialogType type = IDialog::kModeless) {
        const InterfacePtr<IApplication> application(
            GetExecutionContextSession()->QueryApplication());
        const InterfacePtr<IDialogMgr> manager(application->QueryDialogMgr());
        return manager->CreateNewDialog(resource, type, kTrue);
    }
    void Open() {
        Create({0, 0x99000, kView, 7})->Open();
        ASSERT_NE(dialog, nullptr);
    }

    host::ShownDialog* dialog = nullptr;
    int changes = 0;
};

TEST_F(ViewTest, ThereIsADialogForItsOwnResourceOnly) {
    EXPECT_EQ(Create({0, 0x99000, kView, 8}), nullptr);
    EXPECT_EQ(Create({0, 0x99001, kView, 7}), nullptr);
    EXPECT_EQ(Create({0, 0x99000, kView + 1, 7}), nullptr);
    EXPECT_NE(Create({0, 0x99000, kView, 7}), nullptr);  // and is never opened
}

TEST_F(ViewTest, WidgetsAreWhereTheResourceSays) {
    Open();
    EXPECT_EQ(ToUtf8(dialog->GetTitle()), "Grüße, €, 😀");
    ASSERT_EQ(dialog->CountGroups(), 2);
    EXPECT_EQ(ToUtf8(dialog->GetGroupTitle(0)), "Grüße, €, 😀");
    EXPECT_EQ(ToUtf8(dialog->GetGroupTitle(1)), "");
    EXPECT_EQ(ToUtf8(dialog->GetGroupTitle(2)), "");
    ASSERT_EQ(dialog->CountWidgets(), 6);
    struct {
        WidgetKind kind;
        host::WidgetPlace place;
    } const expected[] = {
        {WidgetKind::kLabel, {0, 0, 0, false}},    {WidgetKind::kPopUp, {0, 0, 1, false}},
        {WidgetKind::kCheckBox, {0, 1, 1, false}}, {WidgetKind::kEditBox, {1, 0, 0, true}},
        {WidgetKind::kButton, {-1, 0, 0, false}},  {WidgetKind::kButton, {-1, 0, 1, false}},
    };
    for (int32 i = 0; i < 6; ++i) {
        const host::ShownWidget& widget = *dialog->GetWidget(i);
        EXPECT_EQ(widget.GetKind(), expected[i].kind);
        EXPECT_EQ(widget.GetPlace().group, expected[i].place.group);
        EXPECT_EQ(widget.GetPlace().row, expected[i].place.row);
        EXPECT_EQ(widget.GetPlace().column, expected[i].place.column);
        EXPECT_EQ(widget.GetPlace().spansRow, expected[i].place.spansRow);
        EXPECT_EQ(widget.GetLabelled(), i == 0 ? dialog->GetWidget(1) : nullptr);
    }
    EXPECT_EQ(dialog->GetWidget(-1), nullptr);
    EXPECT_EQ(dialog->GetWidget(6), nullptr);
    EXPECT_EQ(dialog->FindShown(0), nullptr);
    EXPECT_EQ(dialog->FindShown(0x99004), nullptr);
    EXPECT_EQ(dialog->FindShown(0x99003), dialog->GetWidget(3));
}

TEST_F(ViewTest, ThePlugInReachesAWidgetByTheInterfacesOfItsKind) {
    IDialog* const created = Create({0, 0x99000, kView, 7});
    created->Open();
    const InterfacePtr<IPanelControlData> panel(created, UseDefaultIID());
    ASSERT_TRUE(panel);
    EXPECT_EQ(panel->FindWidget(0), nullptr);
    EXPECT_EQ(panel->FindWidget(0x99004), nullptr);
    const auto offers = [&](WidgetID id, PMIID interfaceID) {
        const InterfacePtr<IPMUnknown> found(panel->FindWidget(id), interfaceID);
        return found.get() != nullptr;
    };
    for (const WidgetID id : std::initializer_list<WidgetID>{0x99001, 0x99002, 0x99003, 0x0F01}) {
        EXPECT_EQ(panel->FindWidget(id)->GetWidgetID(), id);
        EXPECT_TRUE(offers(id, IID_ISUBJECT));
        EXPECT_EQ(offers(id, IID_IDROPDOWNLISTCONTROLLER), id == 0x99001);
        EXPECT_EQ(offers(id, IID_ISTRINGLISTCONTROLDATA), id == 0x99001);
        EXPECT_EQ(offers(id, IID_ITRISTATECONTROLDATA), id == 0x99002);
        EXPECT_EQ(offers(id, IID_ITEXTCONTROLDATA), id == 0x99003 || id == 0x0F01);
    }
}

TEST_F(ViewTest, ItemsAreAddedChosenAndDisabled) {
    IDialog* const created = Create({0, 0x99000, kView, 7});
    created->Open();
    const InterfacePtr<IPanelControlData> panel(created, UseDefaultIID());
    IControlView* const view = panel->FindWidget(0x99001);
    const InterfacePtr<IStringListControlData> list(view, UseDefaultIID());
    const InterfacePtr<IDropDownListController> controller(view, UseDefaultIID());
    host::ShownWidget& shown = *dialog->FindShown(0x99001);
    EXPECT_EQ(list->Length(), 2);
    EXPECT_EQ(controller->GetSelected(), -1);
    controller->Select(1);
    list->AddString(PMString("kFirst"), 0);
    EXPECT_EQ(shown.GetSelected(), 2) << "the item chosen stays chosen";
    EXPECT_EQ(ToUtf8(shown.GetText()), "kB");
    list->AddString(PMString("kGreeting"));
    EXPECT_EQ(ToUtf8(list->GetString(3)), "Grüße, €, 😀");
    EXPECT_TRUE(list->GetString(4).IsEmpty());
    controller->EnableItem(0, kFalse);
    controller->EnableItem(9, kFalse);
    EXPECT_FALSE(shown.Choose(0));
    EXPECT_FALSE(shown.Choose(4));
    EXPECT_FALSE(shown.Choose(-1));
    EXPECT_TRUE(shown.Choose(3));
    EXPECT_EQ(controller->GetSelected(), 3);
    view->Disable();
    EXPECT_FALSE(shown.Choose(1));
    view->Enable();
    EXPECT_TRUE(shown.Choose(1));
    controller->Select(99);
    EXPECT_EQ(shown.GetSelected(), -1);
    list->Clear();
    EXPECT_EQ(shown.CountItems(), 0);
}

TEST_F(ViewTest, TheWrongKindOfWidgetDoesNothing) {
    Open();
    host::ShownWidget& box = *dialog->FindShown(0x99002);
    EXPECT_FALSE(box.Press());
    EXPECT_FALSE(box.Choose(0));
    EXPECT_FALSE(box.Type(PMString("a")));
    EXPECT_FALSE(dialog->FindShown(0x99003)->Tick(true));
    EXPECT_EQ(changes, 0);
    EXPECT_TRUE(box.Tick(true));
    EXPECT_EQ(box.GetState(), 2);
    EXPECT_TRUE(box.Tick(false));
    EXPECT_EQ(box.GetState(), 0);
    EXPECT_EQ(changes, 2);
}

TEST_F(ViewTest, TheCloseBoxClosesADialogThatNobodyObserves) {
    Open();
    EXPECT_TRUE(dialog->FindShown(0x0F02)->Press());
    ASSERT_NE(dialog, nullptr) << "there is no observer to close it";
    dialog->PressCloseBox();
    EXPECT_EQ(dialog, nullptr);
}

TEST_F(ViewTest, AModalDialogIsClosedWhenItsFrontEndIsDoneWithIt) {
    Create({0, 0x99000, kView, 7}, IDialog::kMovableModal)->Open();
    EXPECT_EQ(dialog, nullptr);
}

TEST_F(ViewTest, TheHostsEndClosesWhatIsOpen) {
    Open();
    host.Stop();
    EXPECT_EQ(dialog, nullptr);
}

TEST_F(ViewTest, MenusAreThereWithoutAnyoneToAct) {
    ASSERT_EQ(host::CountMenuItems(), 1);
    EXPECT_EQ(ToUtf8(host::GetMenuItem(0).text), "from ^0 to ^1");
    EXPECT_EQ(host::GetMenuItem(0).action, 0x99001u);
    EXPECT_FALSE(host::DoAction(0x99001));
}

TEST_F(ViewTest, LocalesAreListed) {
    ASSERT_EQ(host::CountLocales(), 2);
    EXPECT_STREQ(host::GetLocaleName(0), "enUS");
    EXPECT_STREQ(host::GetLocaleName(1), "qps");
    EXPECT_EQ(host::GetLocaleName(2), nullptr);
    EXPECT_EQ(host::GetLocaleName(-1), nullptr);
}

/** Views that do not fit, and what is said. */
struct Misfit {
    std::string_view from;
    std::string_view to;
    std::string_view error;
};

class ViewMisfitTest : public HostTest, public testing::WithParamInterface<Misfit> {};

TEST_P(ViewMisfitTest, IsToldWithFileAndLine) {
    std::string views(kViews);
    const std::size_t at = views.find(GetParam().from);
    ASSERT_NE(at, std::string::npos);
    WriteResource("views.toml", views.replace(at, GetParam().from.size(), GetParam().to));
    EXPECT_FALSE(Start());
    EXPECT_EQ(Error(), ToUtf8(plugIn.parent_path() / "resources" / "views.toml") +
                           std::string(GetParam().error));
}

INSTANTIATE_TEST_SUITE_P(
    Views, ViewMisfitTest,
    testing::Values(
        Misfit{"base = \"kDialogBoss\"", "base = \"kBoss\"", ", line 6: no such class of the host"},
        Misfit{"base = \"kDialogBoss\"\n", "",
               ", line 14: \"class\" is no class based on kDialogBoss"},
        Misfit{"interfaces = []",
               "interfaces = [{ name = \"I\", id = 0x0F0D, implementation = 0x99002 }]",
               ", line 7: interface 0xF0D stands twice in kPlainDialogBoss"},
        Misfit{"class = 0x99006\ntitle", "class = 0x99009\ntitle",
               ", line 15: \"class\" is no class based on kDialogBoss"},
        Misfit{"\"checkBox\"", "\"chekBox\"", ", line 25: no such kind of widget"},
        Misfit{"column = 1", "columns = 1", ", line 25: \"columns\" is not known"},
        Misfit{"[\"kA\", \"kB\"]", "[7]", ", line 24: an item is a string"},
        Misfit{"[\"kA\", \"kB\"]", "7", ", line 24: \"items\" is a list"},
        Misfit{"default = 0x0F01", "default = 0x99001", ", line 17: \"default\" is no button's id"},
        Misfit{"cancel = 0x0F02\n", "", ", line 13: \"cancel\" is missing"},
        Misfit{"id = 0x99002", "id = 0x99001",
               ", line 13: two widgets of dialog 7 have the same id"},
        Misfit{"{ kind = \"button\", id = 0x0F02 }", "{ kind = \"label\" }",
               ", line 13: the last label names nothing"}));

}  // namespace
