#include <string>
#include <unordered_map>

#include "CAlert.h"
#include "CreateObject.h"
#include "IMemoryService.h"
#include "ISession.h"
#include "LocaleSetting.h"
#include "SysBeep.h"
#include "core/BarcodeTypeRegistry.h"
#include "core/ORTALinewright.h"
#include "host/runtime/Host.h"
#include "host/runtime/MarkedBlocks.h"
#include "host/runtime/TextLookUp.h"
#include "text/Utf8.h"
#include "web/host/TextTable.h"

// A host with the plug-in linked in: a session with the memory service, texts, and the plug-in's
// service. It has no files, dialogs or alerts; requests need none.

namespace host {

namespace {

using Texts = std::unordered_map<std::u32string, std::u32string>;

/** Those of the host that runs. */
constinit const Texts* runningTexts = nullptr;

class Blocks final : public IMemoryService {
  public:
    IPMUnknown* QueryInterface(PMIID /*interfaceID*/) const override { return nullptr; }
    void AddRef() const override {}
    void Release() const override {}

    void* Allocate(uint32 size) override { return blocks.Allocate(size); }
    void* AllocateForConversion(uint32 size) override { return blocks.Allocate(size); }
    void Deallocate(void* block) override {
        if (block) blocks.Deallocate(block);
    }
    bool16 Resize(void* block, uint32 size) override {
        return block && blocks.Resize(block, size) ? kTrue : kFalse;
    }
    uint32 GetSize(const void* block) const override { return block ? blocks.GetSize(block) : 0; }

  private:
    MarkedBlocks blocks;
};

/** One object stands for all bosses: it has the memory service and the plug-in's. */
class Session final : public ISession {
  public:
    IPMUnknown* QueryInterface(PMIID interfaceID) const override {
        if (interfaceID == IID_IMEMORYSERVICE) return &blocks;
        if (interfaceID == linewright::IID_IORTALINEWRIGHT) return &service;
        return nullptr;
    }
    void AddRef() const override {}
    void Release() const override {}
    IApplication* QueryApplication() const override { return nullptr; }

  private:
    mutable Blocks blocks;
    mutable linewright::ORTALinewright service{const_cast<Session*>(this)};
};

Session& TheSession() {
    static Session session;
    return session;
}

}  // namespace

struct Host::State {
    Texts texts;
};

Host::Host() : fState(new State) {}

Host::~Host() {
    Stop();
    delete fState;
}

bool Host::Start(const Settings& settings) {
    const std::string_view wanted = settings.locale ? settings.locale : "";
    for (const TextRow& row : TextTable()) {
        fState->texts.emplace(linewright::CharactersFromUtf8(row.key),
                              linewright::CharactersFromUtf8(row.texts[LocaleNumber(wanted)]));
    }
    runningTexts = &fState->texts;
    // What the plug-in does when it starts, but for its preferences' file.
    linewright::BuildTypeRegistry();
    return true;
}

Leaks Host::Stop() {
    if (runningTexts == &fState->texts) runningTexts = nullptr;
    return {};
}

const char* Host::Error() const {
    return "";
}

Call::Call() = default;

Call::~Call() = default;

const std::u32string* FindText(const std::u32string& key) noexcept {
    if (runningTexts == nullptr) return nullptr;
    const auto found = runningTexts->find(key);
    return found == runningTexts->end() ? nullptr : &found->second;
}

}  // namespace host

ISession* GetExecutionContextSession() {
    return &host::TheSession();
}

IPMUnknown* CreateObject(ClassID /*classID*/, PMIID interfaceID) {
    return host::TheSession().QueryInterface(interfaceID);
}

int16 CAlert::ErrorAlert(const PMString& /*message*/) {
    return 1;
}

bool16 CAlert::GetShowAlerts() {
    return kFalse;
}

void CAlert::SetShowAlerts(bool16 /*show*/) {}

void SysBeep() {}

PMLocaleId WLocaleSetting::GetLocale() {
    return 0;
}
