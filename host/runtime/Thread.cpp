#include "host/runtime/Thread.h"

#include <atomic>
#include <thread>

#include "host/runtime/Halt.h"
#include "host/runtime/Host.h"

namespace host {

namespace {

std::atomic<std::thread::id> owner;  // nobody's while no host runs
std::atomic<bool> isCallInside = false;

}  // namespace

void HaltOnOtherThread() {
    const std::thread::id wanted = owner;
    if (wanted != std::thread::id() && wanted != std::this_thread::get_id())
        Halt("a call from a thread that the host was not handed over to");
}

void ForgetThread() {
    owner = std::thread::id();
}

void UseThisThread() {
    if (kChecksRules && isCallInside) Halt("the host is handed over while a call is inside");
    owner = std::this_thread::get_id();
}

Call::Call() {
    CheckThread();
    if (isCallInside.exchange(true) && kChecksRules) Halt("a call arrives while another is inside");
}

Call::~Call() {
    isCallInside = false;
}

}  // namespace host
