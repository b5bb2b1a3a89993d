#include "CreateObject.h"
#include "IApplication.h"
#include "IDataBase.h"
#include "IDialogMgr.h"
#include "IPMPersist.h"
#include "ISession.h"
#include "tests/host/HostTest.h"
#include "tests/host/TestPlugIn.h"

namespace {

template <class IFace>
InterfacePtr<IFace> Create(ClassID classID) {
    return InterfacePtr<IFace>(
        static_cast<IFace*>(CreateObject(classID, static_cast<PMIID>(IFace::kDefaultIID))));
}

/** Sets a note's number in a transaction of its own. */
void Store(INote* note, int32 number) {
    IDataBase* const dataBase = GetDataBase(note);
    ASSERT_TRUE(dataBase);
    dataBase->BeginTransaction();
    note->Set(number);
    dataBase->EndTransaction();
}

}  // namespace

using BossTest = StartedHostTest;

TEST_F(BossTest, IsMadeByClassAndInterface) {
    EXPECT_TRUE(Create<IEcho>(kEchoBoss));
    EXPECT_EQ(CreateObject(kEchoBoss, IID_INOTE), nullptr);
    EXPECT_EQ(CreateObject(0x99003, IID_IECHO), nullptr);
    EXPECT_EQ(CreateObject(0, IID_IPMUNKNOWN), nullptr);
    const InterfacePtr<IPMUnknown> boss(CreateObject(kEchoBoss, IID_IPMUNKNOWN));
    EXPECT_TRUE(boss);
}

TEST_F(BossTest, LivesAsLongAsItIsReferredTo) {
    const InterfacePtr<IEcho> witness = Create<IEcho>(kEchoBoss);
    EXPECT_EQ(witness->CountObjects(), 1);
    IEcho* const echo = static_cast<IEcho*>(CreateObject(kEchoBoss, IID_IECHO));
    EXPECT_EQ(witness->CountObjects(), 2);
    echo->AddRef();
    echo->Release();
    EXPECT_EQ(witness->CountObjects(), 2);
    echo->Release();
    EXPECT_EQ(witness->CountObjects(), 1);
}

TEST_F(BossTest, GivesOneObjectAnInterface) {
    const InterfacePtr<IEcho> echo = Create<IEcho>(kEchoBoss);
    const InterfacePtr<IEcho> again(echo, UseDefaultIID());
    EXPECT_EQ(echo.get(), again.get());
    const InterfacePtr<IPMUnknown> boss(echo, UseDefaultIID());
    const InterfacePtr<IEcho> fromBoss(boss, UseDefaultIID());
    EXPECT_EQ(echo.get(), fromBoss.get());
    const InterfacePtr<INote> none(echo, UseDefaultIID());
    EXPECT_FALSE(none);
    EXPECT_EQ(echo->CountObjects(), 1);
}

TEST_F(BossTest, HasNoDataBaseUnlessPersistent) {
    const InterfacePtr<IEcho> echo = Create<IEcho>(kEchoBoss);
    const InterfacePtr<IPMPersist> persist(echo, UseDefaultIID());
    EXPECT_FALSE(persist);
    EXPECT_EQ(GetDataBase(echo), nullptr);
    EXPECT_EQ(GetDataBase(nullptr), nullptr);
    const InterfacePtr<INote> note = Create<INote>(kNoteBoss);
    EXPECT_NE(GetDataBase(note), nullptr);
}

TEST_F(BossTest, KeepsWhatATransactionStored) {
    Store(Create<INote>(kNoteBoss), -123456789);
    const InterfacePtr<INote> note = Create<INote>(kNoteBoss);
    EXPECT_EQ(note->Get(), -123456789);
    const InterfacePtr<INote> same = Create<INote>(kNoteBoss);
    EXPECT_EQ(note.get(), same.get());
}

TEST_F(BossTest, KeepsAChangedObjectUntilTheTransactionEnds) {
    IDataBase* dataBase = nullptr;
    {
        const InterfacePtr<INote> note = Create<INote>(kNoteBoss);
        dataBase = GetDataBase(note);
        dataBase->BeginTransaction();
        note->Set(1);
        note->Set(2);
    }
    dataBase->EndTransaction();
    EXPECT_EQ(Create<INote>(kNoteBoss)->Get(), 2);
}

TEST_F(BossTest, KeepsItsDataBaseInAFile) {
    EXPECT_EQ(Create<INote>(kNoteBoss)->Get(), 0);
    Store(Create<INote>(kNoteBoss), 5);
    host.Stop();
    ASSERT_TRUE(Start());
    EXPECT_EQ(Create<INote>(kNoteBoss)->Get(), 5);
}

TEST_F(BossTest, KeepsChangesOfARunWhoseDataBaseCannotBeWritten) {
    Store(Create<INote>(kNoteBoss), 5);
    host::Faults::FailIo(host::Faults::Io::kRename);
    Store(Create<INote>(kNoteBoss), 6);
    EXPECT_EQ(Create<INote>(kNoteBoss)->Get(), 6);
    host::Faults::FailIo(host::Faults::Io::kNone);
    host.Stop();
    ASSERT_TRUE(Start());
    EXPECT_EQ(Create<INote>(kNoteBoss)->Get(), 5);
}

TEST_F(BossTest, RefusesADamagedDataBaseAndLeavesIt) {
    Store(Create<INote>(kNoteBoss), 5);
    host.Stop();
    const std::filesystem::path file = std::filesystem::path(roamingText) / "Application Database";
    const std::string content = ReadFile(file);
    ASSERT_EQ(content, std::string("LWDB\x05\x90\x09\0\x03\x90\x09\0\4\0\0\0\5\0\0\0", 20));
    for (const std::string& damaged :
         {content.substr(0, 19), content.substr(0, 6), content.substr(0, 3), content + "x",
          std::string("X") + content.substr(1), std::string(),
          content.substr(0, 12) + "\xFF\xFF\xFF\xFF"
                                  "5"}) {
        WriteFile(file, damaged);
        ASSERT_FALSE(Start());
        EXPECT_NE(std::string(host.Error()).find("database is damaged"), std::string::npos);
        EXPECT_EQ(ReadFile(file), damaged);
    }
    WriteFile(file, content);
    ASSERT_TRUE(Start());
    EXPECT_EQ(Create<INote>(kNoteBoss)->Get(), 5);
}

TEST_F(BossTest, LetsGoOfChangesOfATransactionThatDoesNotEnd) {
    const InterfacePtr<INote> note = Create<INote>(kNoteBoss);
    GetDataBase(note)->BeginTransaction();
    note->Set(7);
}

TEST_F(BossTest, ChangesOnlyInsideATransaction) {
    const InterfacePtr<INote> note = Create<INote>(kNoteBoss);
    IDataBase* const dataBase = GetDataBase(note);
    if (host::ChecksRules()) {
        EXPECT_DEATH(note->Set(1), "changed outside a transaction");
        EXPECT_DEATH(dataBase->EndTransaction(), "ended that was not begun");
        dataBase->BeginTransaction();
        EXPECT_DEATH(dataBase->BeginTransaction(), "begun inside another");
        dataBase->EndTransaction();
        EXPECT_DEATH(note->Set(1), "changed outside a transaction");
    } else {
        note->Set(1);
        EXPECT_EQ(note->Get(), 1);
    }
}

TEST_F(BossTest, ReachesTheHostsOwnObjectsFromTheSession) {
    ISession* const session = GetExecutionContextSession();
    ASSERT_TRUE(session);
    EXPECT_EQ(session, GetExecutionContextSession());
    const InterfacePtr<IApplication> application(session->QueryApplication());
    ASSERT_TRUE(application);
    const InterfacePtr<IDialogMgr> manager(application->QueryDialogMgr());
    ASSERT_TRUE(manager);
    const RsrcSpec resource{0, 0x99000, FourCharCode('V', 'I', 'E', 'W'), 250};
    EXPECT_EQ(manager->CreateNewDialog(resource, IDialog::kModeless, kTrue), nullptr);
}

TEST_F(BossTest, CanTakeTheHostsOwnObjectsAway) {
    using Missing = host::Faults::Missing;
    ISession* const session = GetExecutionContextSession();
    const InterfacePtr<IApplication> application(session->QueryApplication());

    host::Faults::TakeAway(Missing::kSession);
    EXPECT_EQ(GetExecutionContextSession(), nullptr);
    host::Faults::TakeAway(Missing::kMemoryService);
    EXPECT_EQ(GetExecutionContextSession(), session);
    EXPECT_FALSE(QueryMemory());
    host::Faults::TakeAway(Missing::kApplication);
    EXPECT_TRUE(QueryMemory());
    EXPECT_EQ(session->QueryApplication(), nullptr);
    host::Faults::TakeAway(Missing::kDialogManager);
    EXPECT_EQ(application->QueryDialogMgr(), nullptr);
    EXPECT_EQ(InterfacePtr<IApplication>(session->QueryApplication()).get(), application.get());
    host::Faults::TakeAway(Missing::kNothing);
    EXPECT_TRUE(InterfacePtr<IDialogMgr>(application->QueryDialogMgr()));
}

using ReferenceTest = HostTest;

TEST_F(ReferenceTest, ReportsThoseLeft) {
    ASSERT_TRUE(Start()) << Error();
    GetExecutionContextSession()->AddRef();
    IPMUnknown* const boss = CreateObject(kEchoBoss, IID_IPMUNKNOWN);
    boss->AddRef();
    const host::Leaks leaks = host.Stop();
    EXPECT_EQ(leaks.references, 3u);
    EXPECT_EQ(leaks.blocks, 0u);
    // Too late, but no harm is done.
    EXPECT_EQ(boss->QueryInterface(IID_IECHO), nullptr);
    boss->Release();
    boss->Release();
    ASSERT_TRUE(Start()) << Error();
    EXPECT_EQ(host.Stop().references, 0u);
}
