#include "host/runtime/Running.h"

#include <algorithm>
#include <atomic>
#include <iterator>
#include <stdexcept>
#include <utility>

#include "CreateObject.h"
#include "FileUtils.h"
#include "host/runtime/Dialog.h"
#include "host/runtime/Faults.h"
#include "host/runtime/Paths.h"
#include "host/runtime/Platform.h"
#include "host/runtime/ResourceFile.h"
#include "host/runtime/Session.h"
#include "host/runtime/Thread.h"

namespace fs = std::filesystem;

namespace host {

namespace {

std::atomic<Running*> current = nullptr;

constexpr const char* kFolderName = "Linewright Host";
constexpr const char* kDataBaseName = "Application Database";

std::optional<fs::path> ChosenFolder(const char* setting) {
    if (!setting) return std::nullopt;
    return fs::absolute(PathFromUtf8(setting));
}

std::optional<fs::path> DefaultRoamingFolder() {
    std::optional<fs::path> folder = UserSettingsFolder();
    if (folder) *folder /= kFolderName;
    return folder;
}

std::string Join(const std::vector<std::string>& names) {
    std::string text;
    for (const std::string& name : names) text += (text.empty() ? "" : ", ") + name;
    return text;
}

PlugIn& FindPlugIn(const Library& library, const fs::path& path) {
    const auto entry = reinterpret_cast<PlugIn* (*)()>(library.Find("GetPlugIn"));
    if (!entry) throw std::runtime_error("no plug-in, GetPlugIn is missing: " + Utf8FromPath(path));
    PlugIn* const plugIn = entry();
    if (!plugIn) throw std::runtime_error("GetPlugIn gives no plug-in: " + Utf8FromPath(path));
    return *plugIn;
}

}  // namespace

Running* GetRunning() {
    CheckThread();
    return current;
}
void SetRunning(Running* running) {
    current = running;
    if (!running) ForgetThread();
}

void Running::Start(const Settings& settings) {
    if (!settings.plugin) throw std::runtime_error("no plug-in library is named");
    const fs::path plugIn = PathFromUtf8(settings.plugin);
    const fs::path resources = plugIn.parent_path() / "resources";
    if (!fs::is_regular_file(plugIn)) {
        throw std::runtime_error("plug-in library missing: " + Utf8FromPath(plugIn));
    }
    if (settings.frontEnd) frontEnd = settings.frontEnd;
    SetFolders(settings);
    SetLocale(resources, settings.locale);
    if (roamingFolder) dataBase.UseFile(*roamingFolder / kDataBaseName);
    session = new Boss(kSessionClass);
    executionSession = InterfacePtr<ISession>(session, UseDefaultIID());
    application = new Boss(kApplicationClass);
    library.Load(plugIn, "plug-in library");
    const PlugIn& loaded = FindPlugIn(library, plugIn);
    const Definitions definitions(resources);
    classes = ClassTable(definitions, loaded);
    views = ViewTable(definitions, classes);
    const SettingsLock lock;
    RunServices();
}

void Running::SetFolders(const Settings& settings) {
    roamingFolder =
        settings.roamingFolder ? ChosenFolder(settings.roamingFolder) : DefaultRoamingFolder();
    appFolder = settings.appFolder ? ChosenFolder(settings.appFolder) : ProgramFolder();
    // Without its folder the host still runs; what would be kept there is not.
    std::error_code ignored;
    if (roamingFolder && !IoFails(Faults::Io::kCreateFolder)) {
        fs::create_directories(*roamingFolder, ignored);
        std::error_code error;
        static_cast<void>(fs::status(*roamingFolder / kDataBaseName, error));
        if (error == std::errc::permission_denied) unreadable.Add(*roamingFolder, error.message());
    }
}

void Running::SetLocale(const fs::path& resources, const char* name) {
    locales = ListLocales(resources);
    const std::string_view wanted = name ? name : kDefaultLocale;
    const auto found = std::find(locales.begin(), locales.end(), wanted);
    if (found == locales.end()) {
        throw std::runtime_error("locale \"" + std::string(wanted) +
                                 "\" is unknown; there are: " + Join(locales));
    }
    locale = static_cast<PMLocaleId>(found - locales.begin());
    strings = StringTable(resources, wanted);
}

void Running::LockSettings() {
    if (lockCount++ == 0) TakeLocks();
}

void Running::UnlockSettings() {
    if (--lockCount == 0) locks.clear();
}

void Running::TakeLocks() {
    // Where the settings lie is the plug-in's choice: the user's folder, or the application's one.
    if (roamingFolder) locks.emplace_back(*roamingFolder);
    if (appFolder) locks.emplace_back(*appFolder / "Plug-Ins");
}

void Running::RunServices() {
    for (const BossClass* service : classes.WithInterface(IID_ISTARTUPSHUTDOWN)) {
        auto* const started =
            static_cast<IStartupShutdownService*>(CreateObject(service->id, IID_ISTARTUPSHUTDOWN));
        if (!started) throw std::runtime_error(service->name + " cannot be made");
        if (started->Startup() != kSuccess) {
            started->Release();
            throw std::runtime_error(service->name + " failed to start");
        }
        services.push_back(started);
    }
}

Leaks Running::Stop() {
    while (!dialogs.empty()) Discard(dialogs.back());
    while (!services.empty()) {
        IStartupShutdownService* const last = services.back();
        services.pop_back();
        last->Shutdown();
        last->Release();
    }
    dataBase.Close();
    // The session answers until the plug-in's static objects are gone.
    library.Unload();
    if (application) application->Release();
    if (session) session->Release();
    const Leaks leaks{memory.Counts().liveBlocks, Counted::LiveReferences()};
    Counted::AbandonAll();
    return leaks;
}

}  // namespace host
