#include "host/runtime/Host.h"

#include <exception>
#include <memory>
#include <new>
#include <string>

#include "host/runtime/Halt.h"
#include "host/runtime/Make.h"
#include "host/runtime/Running.h"

namespace host {

struct Host::State {
    std::unique_ptr<Running> running;
    std::string error;

    Leaks Stop() noexcept {
        const Leaks leaks = running->Stop();
        SetRunning(nullptr);
        running.reset();
        return leaks;
    }
};

Host::Host() : fState(Make<State>()) {}

Host::~Host() {
    Stop();
    delete fState;
}

bool Host::Start(const Settings& settings) try {
    if (GetRunning()) {
        fState->error = "a host is running already";
        return false;
    }
    fState->error.clear();
    fState->running = std::make_unique<Running>();
    UseThisThread();
    SetRunning(fState->running.get());
    fState->running->Start(settings);
    return true;
} catch (const std::bad_alloc&) {
    fState->error = "there is not enough memory";
    Stop();
    return false;
} catch (const std::exception& error) {
    fState->error = error.what();
    Stop();
    return false;
}

Leaks Host::Stop() {
    return fState->running ? fState->Stop() : Leaks();
}

const char* Host::Error() const {
    return fState->error.c_str();
}

SettingsLock::SettingsLock() {
    if (Running* const running = GetRunning()) running->LockSettings();
}

SettingsLock::~SettingsLock() {
    if (Running* const running = GetRunning()) running->UnlockSettings();
}

int32 CountLocales() {
    const Running* const running = GetRunning();
    return running ? static_cast<int32>(running->locales.size()) : 0;
}

const char* GetLocaleName(int32 locale) {
    if (locale < 0 || locale >= CountLocales()) return nullptr;
    return GetRunning()->locales[static_cast<std::size_t>(locale)].c_str();
}

bool ChecksRules() {
    return kChecksRules;
}

MemoryCounts CountMemory() {
    const Running* const running = GetRunning();
    return running ? running->memory.Counts() : MemoryCounts();
}

}  // namespace host
