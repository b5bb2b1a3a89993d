#pragma once

#include "IPMUnknown.h"
#include "host/runtime/FrontEnd.h"

namespace host {

/** What a host is started with. Texts are UTF-8, copied by Start; nullptr takes the default. */
struct Settings {
    /** The plug-in's library. Its resources lie in the folder `resources` beside it: definitions of
     *  classes in every .toml there, and below in `strings` a table for each locale. */
    const char* plugin = nullptr;
    /** The roaming folder; by default `Linewright Host` below the user's application data. */
    const char* roamingFolder = nullptr;
    /** The application folder; by default the folder of the running program. */
    const char* appFolder = nullptr;
    /** A locale such as "enUS", the default, or "qps", the pseudo-locale in which a key shows as
     *  itself and the markers of its text in enUS, such as "kKey|^0|^1". */
    const char* locale = nullptr;
    /** Shows alerts and sounds beeps; the console front end by default. Outlives the host. */
    FrontEnd* frontEnd = nullptr;
};

/** What was still alive when a host stopped; all zero after a clean run. */
struct Leaks {
    uint32 blocks = 0;
    uint32 references = 0;
};

/**
 * The stand-in host: one a process at a time. Started, it loads one plug-in, binds its
 * implementations to the classes of its resource definitions and runs its start-up service; from
 * then on GetExecutionContextSession and CreateObject answer. Main thread only: see UseThisThread.
 */
class PUBLIC_DECL Host {
  public:
    Host();
    Host(const Host&) = delete;
    Host& operator=(const Host&) = delete;
    ~Host();

    /** Loads and starts the plug-in. On failure returns false, Error() says what and where, and
     *  nothing stays loaded. */
    bool Start(const Settings& settings);
    /** Runs the shut-down service, unloads the plug-in and counts what is left. */
    Leaks Stop();
    /** The last failure as UTF-8 text; "" without one. */
    const char* Error() const;

  private:
    struct State;
    State* fState;
};

/**
 * Keeps other hosts with the same folders from starting, and from a lock of this kind, as long as
 * it lives: around what loads settings, changes and saves them. Start holds one for the start-up
 * services. Let go of while an alert or a dialog waits for the user; where no lock can be had there
 * is none. While the host runs.
 */
class PUBLIC_DECL SettingsLock {
  public:
    SettingsLock();
    SettingsLock(const SettingsLock&) = delete;
    SettingsLock& operator=(const SettingsLock&) = delete;
    ~SettingsLock();
};

/**
 * Host and plug-in run on one thread, which headers call the main thread: the one that called
 * Start. UseThisThread hands them over to the calling thread; whoever calls it makes sure that the
 * last call of the thread before has returned. A Call is made around each request to the plug-in. A
 * host that checks rules halts the process when a call comes from another thread or arrives while
 * another is inside.
 */
PUBLIC_DECL void UseThisThread();

class PUBLIC_DECL Call {
  public:
    Call();
    Call(const Call&) = delete;
    Call& operator=(const Call&) = delete;
    ~Call();
};

/** Has the process end where memory does, with exit status 2 and a sentence on standard error that
 *  begins with the program's name; no draft of a file stays. For programs: without it the host's
 *  calls fail where they can say so. */
PUBLIC_DECL void EndWithoutMemory(const char* program);

/** The locales of the running plug-in by their PMLocaleId: 0 to CountLocales() - 1. A name, such as
 *  "enUS", is one for Settings; nullptr where there is none. */
PUBLIC_DECL int32 CountLocales();
PUBLIC_DECL const char* GetLocaleName(int32 locale);

/** Whether this host halts the process, with a word on standard error, where a plug-in breaks a
 *  rule (a double free, a change outside a transaction); debug builds do. Others carry on. */
PUBLIC_DECL bool ChecksRules();

/** Switches for tests of what happens when the machine fails. They hold until set again. */
struct PUBLIC_DECL Faults {
    /** The n-th allocation of the memory service from now fails, counted from 1; 0: none does. */
    static void FailAllocation(uint32 n);
    enum class Io { kNone, kOpenRead, kOpenWrite, kRead, kWrite, kFlush, kRename, kCreateFolder };
    /** Every file operation of this kind fails. */
    static void FailIo(Io operation);
    /** Takes the session away, its application, or its dialog manager. */
    enum class Missing { kNothing, kSession, kMemoryService, kApplication, kDialogManager };
    static void TakeAway(Missing what);
};

/** What the memory service did since the host was started. */
struct MemoryCounts {
    uint32 allocations = 0;
    uint32 deallocations = 0;
    uint32 liveBlocks = 0;
};
PUBLIC_DECL MemoryCounts CountMemory();

}  // namespace host
