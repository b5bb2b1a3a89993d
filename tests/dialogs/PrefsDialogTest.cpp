#include <cstring>

#include "CreateObject.h"
#include "InterfacePtr.h"
#include "classic/Msi.h"
#include "core/IORTALinewright.h"
#include "tests/TestBlock.h"
#include "tests/dialogs/DialogTest.h"

namespace linewright {

namespace {

bool AreSame(const LinewrightPrefsRecord& a, const LinewrightPrefsRecord& b) {
    return std::memcmp(&a, &b, sizeof a) == 0;
}

LinewrightPrefsRecord WithMsi(int first, int second) {
    LinewrightPrefsRecord record = kDefaultPreferences;
    record.msiFirstCheck = static_cast<int16>(first);
    record.msiSecondCheck = static_cast<int16>(second);
    return record;
}

class PrefsDialogTest : public DialogTest {
  protected:
    /** What the plug-in's live preferences make of a number in classic MSI. */
    static std::string MsiNow() {
        const InterfacePtr<IORTALinewright> service(static_cast<IORTALinewright*>(
            CreateObject(kLinewrightServiceBoss, IID_IORTALINEWRIGHT)));
        TestBlock block("1234567");
        LinewrightRequestParams params{};
        params.typeName = MakePString("_BARCODE_MSIPLESSEY_");
        params.slot1 = &block.bytes;
        params.dataLength = block.length;
        LinewrightRequest request{0, kEncodeRequest, &params};
        service->ProcessRequest(&request);
        block.length = params.dataLength;
        return block.Text();
    }
    /** What chosen preferences make of it. */
    static std::string MsiBy(int first, int second) {
        TestBlock block("1234567");
        EncodeMsiClassic(block.Data(), static_cast<int16>(first), static_cast<int16>(second));
        return block.Text();
    }
};

TEST_F(PrefsDialogTest, ShowsTheDefaults) {
    Start();
    UsePreferences([](ShownDialog& dialog) {
        EXPECT_EQ(dialog.GetType(), IDialog::kMovableModal);
        EXPECT_EQ(Latin1(dialog.GetTitle()), "0x122100kLWRPrefsDialogTitleKey");
        EXPECT_EQ(At(dialog, 0x122107).GetSelected(), 2);
        EXPECT_EQ(At(dialog, 0x122108).GetState(), 2);
        EXPECT_EQ(At(dialog, 0x12210B).GetState(), 2);
        EXPECT_EQ(At(dialog, 0x122102).GetState(), 2);
        EXPECT_EQ(At(dialog, 0x12210F).GetSelected(), 1);
        EXPECT_EQ(At(dialog, 0x122111).GetSelected(), 0);
        EXPECT_EQ(dialog.GetDefaultButton(), dialog.FindShown(kOKButton));
        EXPECT_EQ(dialog.GetCancelButton(), dialog.FindShown(kCancelButton));
        for (int32 i = 0; i < dialog.CountWidgets(); ++i)
            EXPECT_TRUE(dialog.GetWidget(i)->IsEnabled());
    });
}

TEST_F(PrefsDialogTest, ItsPopUpsListTheirValuesInOrder) {
    Start();
    UsePreferences([](ShownDialog& dialog) {
        const auto itemsOf = [&](WidgetID id) {
            std::vector<std::string> items;
            items.reserve(3);
            for (int32 i = 0; i < At(dialog, id).CountItems(); ++i)
                items.push_back(Latin1(At(dialog, id).GetItem(i)));
            return items;
        };
        EXPECT_THAT(itemsOf(0x122107),
                    testing::ElementsAre("0x122100kLWRPrefsDialogCode39CheckNoneKey",
                                         "0x122100kLWRPrefsDialogCode39CheckModulo10Key",
                                         "0x122100kLWRPrefsDialogCode39CheckModulo43Key"));
        const auto msi = testing::ElementsAre("0x122100kLWRPrefsDialogMSICheckNoneKey",
                                              "0x122100kLWRPrefsDialogMSICheckModulo10Key",
                                              "0x122100kLWRPrefsDialogMSICheckModulo11Key");
        EXPECT_THAT(itemsOf(0x12210F), msi);
        EXPECT_THAT(itemsOf(0x122111), msi);
    });
}

TEST_F(PrefsDialogTest, ShowsEveryValueOfEveryPreference) {
    for (int value = 0; value <= 2; ++value) {
        LinewrightPrefsRecord record = WithMsi(value, 0);
        record.code39CheckMode = static_cast<uint16>(value);
        record.code39UseAsterisk = static_cast<uint8>(value);
        record.i2of5CheckDigit = value == 1 ? 255 : 0;
        record.showErrorAlerts = value == 2 ? 0 : 1;
        Start(record);
        UsePreferences([&](ShownDialog& dialog) {
            EXPECT_EQ(At(dialog, 0x122107).GetSelected(), value);
            EXPECT_EQ(At(dialog, 0x122108).GetState(), value > 0 ? 2 : 0);
            EXPECT_EQ(At(dialog, 0x12210B).GetState(), value == 1 ? 2 : 0);
            EXPECT_EQ(At(dialog, 0x122102).GetState(), value == 2 ? 0 : 2);
            EXPECT_EQ(At(dialog, 0x12210F).GetSelected(), value);
        });
    }
}

TEST_F(PrefsDialogTest, AppliesAndSavesOnOK) {
    LinewrightPrefsRecord record = kDefaultPreferences;
    record.showErrorAlerts = 200;
    record.lastTypeIndex = 12;
    record.codabarStop = 'C';
    Start(record);
    UsePreferences([](ShownDialog& dialog) {
        EXPECT_TRUE(At(dialog, 0x122107).Choose(1));
        EXPECT_TRUE(At(dialog, 0x122108).Tick(false));
        EXPECT_TRUE(At(dialog, 0x12210B).Tick(false));
        EXPECT_TRUE(At(dialog, 0x12210F).Choose(2));
        EXPECT_TRUE(At(dialog, 0x122111).Choose(1));
        EXPECT_TRUE(At(dialog, kOKButton).Press());
        EXPECT_FALSE(dialog.IsOpen());
    });
    record.code39CheckMode = 1;
    record.code39UseAsterisk = 0;
    record.i2of5CheckDigit = 0;
    record.showErrorAlerts = 1;
    record.msiFirstCheck = 2;
    record.msiSecondCheck = 1;
    EXPECT_TRUE(AreSame(SavedPreferences(), record));
    EXPECT_EQ(MsiNow(), MsiBy(2, 1));
    UsePreferences([](ShownDialog& dialog) {
        EXPECT_EQ(At(dialog, 0x122107).GetSelected(), 1);
        EXPECT_EQ(At(dialog, 0x122108).GetState(), 0);
        EXPECT_EQ(At(dialog, 0x12210B).GetState(), 0);
        EXPECT_EQ(At(dialog, 0x122102).GetState(), 2);
    });
}

TEST_F(PrefsDialogTest, FindsThemAgainAfterARestart) {
    Start();
    UsePreferences([](ShownDialog& dialog) {
        At(dialog, 0x122107).Choose(0);
        At(dialog, kOKButton).Press();
    });
    host.emplace(locale, folder);
    UsePreferences([](ShownDialog& dialog) { EXPECT_EQ(At(dialog, 0x122107).GetSelected(), 0); });
}

TEST_F(PrefsDialogTest, CancelRevertsAllButTheMsiChecks) {
    for (const bool byCloseBox : {false, true}) {
        Start();
        UsePreferences([&](ShownDialog& dialog) {
            At(dialog, 0x122107).Choose(0);
            At(dialog, 0x122108).Tick(false);
            At(dialog, 0x12210B).Tick(false);
            At(dialog, 0x122102).Tick(false);
            At(dialog, 0x12210F).Choose(2);
            EXPECT_EQ(MsiNow(), MsiBy(2, 0));
            At(dialog, 0x122111).Choose(1);
            EXPECT_EQ(MsiNow(), MsiBy(2, 1));
            if (byCloseBox) {
                dialog.PressCloseBox();
            } else {
                EXPECT_TRUE(At(dialog, kCancelButton).Press());
            }
            EXPECT_FALSE(dialog.IsOpen());
        });
        EXPECT_TRUE(AreSame(SavedPreferences(), kDefaultPreferences));
        EXPECT_EQ(MsiNow(), MsiBy(2, 1));
        UsePreferences([](ShownDialog& dialog) {
            EXPECT_EQ(At(dialog, 0x122107).GetSelected(), 2);
            EXPECT_EQ(At(dialog, 0x122108).GetState(), 2);
            EXPECT_EQ(At(dialog, 0x12210B).GetState(), 2);
            EXPECT_EQ(At(dialog, 0x122102).GetState(), 2);
            EXPECT_EQ(At(dialog, 0x12210F).GetSelected(), 2);
            EXPECT_EQ(At(dialog, 0x122111).GetSelected(), 1);
        });
        EXPECT_TRUE(AreSame(SavedPreferences(), kDefaultPreferences));
    }
}

/** The second check digit as the rule leaves it. */
int Coupled(int first, int second) {
    return first == 0 || second == 2 ? 0 : second;
}

void ExpectCoupled(const ShownDialog& dialog, int first, int second) {
    const host::ShownWidget& popUp = At(dialog, 0x122111);
    EXPECT_EQ(popUp.IsEnabled(), first != 0);
    EXPECT_EQ(popUp.GetSelected(), Coupled(first, second));
    EXPECT_TRUE(popUp.IsItemEnabled(0));
    EXPECT_TRUE(popUp.IsItemEnabled(1));
    EXPECT_EQ(popUp.IsItemEnabled(2), first == 0);
}

TEST_F(PrefsDialogTest, OpeningCouplesTheMsiChecksInItsCopyOnly) {
    for (int first = 0; first <= 2; ++first) {
        for (int second = 0; second <= 2; ++second) {
            SCOPED_TRACE(testing::Message() << first << " " << second);
            Start(WithMsi(first, second));
            UsePreferences([&](ShownDialog& dialog) {
                EXPECT_EQ(At(dialog, 0x12210F).GetSelected(), first);
                ExpectCoupled(dialog, first, second);
                EXPECT_EQ(MsiNow(), MsiBy(first, second));
                At(dialog, kCancelButton).Press();
            });
            EXPECT_EQ(MsiNow(), MsiBy(first, second));
            EXPECT_TRUE(AreSame(SavedPreferences(), WithMsi(first, second)));
            UsePreferences([](ShownDialog& dialog) { At(dialog, kOKButton).Press(); });
            EXPECT_TRUE(AreSame(SavedPreferences(), WithMsi(first, Coupled(first, second))));
            EXPECT_EQ(MsiNow(), MsiBy(first, Coupled(first, second)));
        }
    }
}

TEST_F(PrefsDialogTest, AChangeCouplesTheMsiChecksInTheLiveRecord) {
    for (int first = 0; first <= 2; ++first) {
        for (int second = 0; second <= 2; ++second) {
            for (int before = 0; before <= 2; ++before) {
                if (before == first) continue;
                SCOPED_TRACE(testing::Message() << before << "->" << first << " " << second);
                Start(WithMsi(before, second));
                UsePreferences([&](ShownDialog& dialog) {
                    EXPECT_TRUE(At(dialog, 0x12210F).Choose(first));
                    ExpectCoupled(dialog, first, second);
                    EXPECT_EQ(MsiNow(), MsiBy(first, Coupled(first, second)));
                });
                EXPECT_EQ(MsiNow(), MsiBy(first, Coupled(first, second)));
                EXPECT_TRUE(AreSame(SavedPreferences(), WithMsi(before, second)));
            }
        }
    }
}

TEST_F(PrefsDialogTest, TheSecondMsiCheckIsOutOfReachWhereItMakesNoSense) {
    Start(WithMsi(1, 0));
    UsePreferences([](ShownDialog& dialog) {
        EXPECT_FALSE(At(dialog, 0x122111).Choose(2));
        EXPECT_EQ(At(dialog, 0x122111).GetSelected(), 0);
        At(dialog, 0x12210F).Choose(0);
        EXPECT_FALSE(At(dialog, 0x122111).Choose(1));
    });
    EXPECT_EQ(MsiNow(), MsiBy(0, 0));
}

TEST_F(PrefsDialogTest, AValueThatAPopUpCannotShowStaysUnlessTheUserChooses) {
    LinewrightPrefsRecord record = WithMsi(7, -5);
    record.code39CheckMode = 65535;
    Start(record);
    UsePreferences([](ShownDialog& dialog) {
        for (const WidgetID id : std::initializer_list<WidgetID>{0x122107, 0x12210F, 0x122111}) {
            EXPECT_EQ(At(dialog, id).GetSelected(), -1);
            EXPECT_EQ(TextAt(dialog, id), "");
            EXPECT_TRUE(At(dialog, id).IsEnabled());
            EXPECT_TRUE(At(dialog, id).IsItemEnabled(2));
        }
        At(dialog, kOKButton).Press();
    });
    EXPECT_TRUE(AreSame(SavedPreferences(), record));

    UsePreferences([](ShownDialog& dialog) {
        EXPECT_TRUE(At(dialog, 0x122107).Choose(1));
        // With a first check digit that is not known, the second one is free.
        EXPECT_TRUE(At(dialog, 0x122111).Choose(2));
        EXPECT_EQ(At(dialog, 0x122111).GetSelected(), 2);
        At(dialog, kOKButton).Press();
    });
    record.code39CheckMode = 1;
    record.msiSecondCheck = 2;
    EXPECT_TRUE(AreSame(SavedPreferences(), record));
}

TEST_F(PrefsDialogTest, HoldsACopyOfTheRecordAsLongAsItExists) {
    Start();
    const uint32 before = host::CountMemory().liveBlocks;
    UsePreferences([&](ShownDialog&) { EXPECT_EQ(host::CountMemory().liveBlocks, before + 1); });
    EXPECT_EQ(host::CountMemory().liveBlocks, before);
}

TEST_F(PrefsDialogTest, WithoutMemoryItChangesNothing) {
    LinewrightPrefsRecord record = WithMsi(2, 1);
    record.code39CheckMode = 1;
    Start(record);
    host::Faults::FailAllocation(1);
    UsePreferences([](ShownDialog& dialog) { At(dialog, kOKButton).Press(); });
    EXPECT_TRUE(AreSame(SavedPreferences(), record));
    EXPECT_EQ(MsiNow(), MsiBy(2, 1));
}

TEST_F(PrefsDialogTest, AFileThatCannotBeWrittenIsIgnored) {
    Start();
    host::Faults::FailIo(host::Faults::Io::kOpenWrite);
    UsePreferences([](ShownDialog& dialog) {
        At(dialog, 0x122107).Choose(0);
        At(dialog, kOKButton).Press();
    });
    EXPECT_TRUE(AreSame(SavedPreferences(), kDefaultPreferences));
    EXPECT_TRUE(host->recorder.alerts.empty());
    UsePreferences([](ShownDialog& dialog) { EXPECT_EQ(At(dialog, 0x122107).GetSelected(), 0); });
}

TEST_F(PrefsDialogTest, RaisesNoAlertAndNoBeep) {
    Start();
    UsePreferences([](ShownDialog& dialog) {
        At(dialog, 0x122107).Choose(0);
        At(dialog, kOKButton).Press();
    });
    EXPECT_TRUE(host->recorder.alerts.empty());
    EXPECT_EQ(host->recorder.beeps, 0);
}

}  // namespace

}  // namespace linewright
