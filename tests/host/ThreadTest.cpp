#include <thread>

#include "CreateObject.h"
#include "ISession.h"
#include "tests/host/HostTest.h"
#include "tests/host/TestPlugIn.h"

using ThreadTest = StartedHostTest;

namespace {

void InAnotherThread(void (*action)()) {
    std::thread(action).join();
}

bool Answers() {
    const InterfacePtr<IEcho> echo(static_cast<IEcho*>(CreateObject(kEchoBoss, IID_IECHO)));
    return echo && echo->CountStarts() == 1;
}

}  // namespace

TEST_F(ThreadTest, IsHandedOverAndBack) {
    EXPECT_TRUE(Answers());
    InAnotherThread([] {
        host::UseThisThread();
        const host::Call call;
        EXPECT_TRUE(Answers());
    });
    host::UseThisThread();
    const host::Call call;
    EXPECT_TRUE(Answers());
}

TEST_F(ThreadTest, OfOthersIsNotLetIn) {
    if (!host::ChecksRules()) GTEST_SKIP();
    const auto entries = {
        +[] { GetExecutionContextSession(); },
        +[] { CreateObject(kEchoBoss, IID_IECHO); },
        +[] { const host::Call call; },
    };
    for (const auto entry : entries)
        EXPECT_DEATH(InAnotherThread(entry), "thread that the host was not handed over to");
    static IMemoryService* memory = nullptr;
    const InterfacePtr<IMemoryService> service = QueryMemory();
    memory = service;
    EXPECT_DEATH(InAnotherThread([] { memory->Allocate(1); }), "was not handed over to");
    EXPECT_DEATH(InAnotherThread([] { memory->AddRef(); }), "was not handed over to");
}

TEST_F(ThreadTest, HasOneCallInside) {
    if (!host::ChecksRules()) GTEST_SKIP();
    const host::Call call;
    EXPECT_DEATH(const host::Call second, "a call arrives while another is inside");
    EXPECT_DEATH(host::UseThisThread(), "handed over while a call is inside");
}
