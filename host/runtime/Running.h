#pragma once

#include <filesystem>
#include <list>
#include <optional>
#include <vector>

#include "ISession.h"
#include "IStartupShutdownService.h"
#include "InterfacePtr.h"
#include "LocaleSetting.h"
#include "files/FolderLock.h"
#include "host/runtime/Boss.h"
#include "host/runtime/ClassTable.h"
#include "host/runtime/ConsoleFrontEnd.h"
#include "host/runtime/DataBase.h"
#include "host/runtime/Host.h"
#include "host/runtime/Library.h"
#include "host/runtime/Memory.h"
#include "host/runtime/StringTable.h"
#include "host/runtime/Unreadable.h"
#include "host/runtime/ViewTable.h"

namespace host {

/** All that belongs to the host while it runs. */
struct Running {
    Running() = default;
    Running(const Running&) = delete;
    Running& operator=(const Running&) = delete;

    /** Throws std::exception with what is wrong; Stop clears up in any case. */
    void Start(const Settings& settings);
    Leaks Stop();

    /** Locks the folders where settings lie, for as many times as they are not unlocked yet. */
    void LockSettings();
    void UnlockSettings();

    ConsoleFrontEnd console;
    FrontEnd* frontEnd = &console;
    bool showsAlerts = true;
    std::optional<std::filesystem::path> roamingFolder;
    std::optional<std::filesystem::path> appFolder;
    std::vector<std::string> locales;
    PMLocaleId locale = 0;
    StringTable strings;
    Memory memory;
    Unreadable unreadable;
    DataBase dataBase;
    ClassTable classes;
    ViewTable views;
    Library library;
    Boss* session = nullptr;
    ISession* executionSession = nullptr;  // of `session`, which holds it
    Boss* application = nullptr;
    std::vector<Boss*> dialogs;                      // those not closed, a reference each
    std::vector<IStartupShutdownService*> services;  // those started, in order
    std::list<files::FolderLock> locks;              // on the folders where settings lie
    int lockCount = 0;

  private:
    void SetFolders(const Settings& settings);
    void SetLocale(const std::filesystem::path& resources, const char* name);
    void RunServices();
    void TakeLocks();
    friend class WhileUserIsAsked;
};

/** Lets others have the locks on the settings as long as it lives. */
class WhileUserIsAsked {
  public:
    explicit WhileUserIsAsked(Running& host) : running(host) { running.locks.clear(); }
    WhileUserIsAsked(const WhileUserIsAsked&) = delete;
    WhileUserIsAsked& operator=(const WhileUserIsAsked&) = delete;
    ~WhileUserIsAsked() {
        if (running.lockCount > 0) running.TakeLocks();
    }

  private:
    Running& running;
};

/** The host that runs; nullptr when none does. */
Running* GetRunning();
void SetRunning(Running* running);

}  // namespace host
