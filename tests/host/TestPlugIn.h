#pragma once

#include "IPMUnknown.h"

// A small plug-in for the host's own tests: what it offers, and the keys of what it shows.

constexpr ClassID kEchoBoss = 0x99004;
constexpr ClassID kNoteBoss = 0x99005;

constexpr PMIID IID_IECHO = 0x99000;
constexpr PMIID IID_INOTE = 0x99001;
constexpr PMIID IID_INOTHING = 0x99002;

/** What the plug-in saw of the host. */
class IEcho : public IPMUnknown {
  public:
    enum { kDefaultIID = IID_IECHO };

    /** How often start-up ran before now; -1 when it had no session, memory or folders. */
    virtual int32 CountStarts() const = 0;
    /** The number of objects of this kind that are alive. */
    virtual int32 CountObjects() const = 0;
};

/** A number kept in the application's database. */
class INote : public IPMUnknown {
  public:
    enum { kDefaultIID = IID_INOTE };

    virtual int32 Get() const = 0;
    virtual void Set(int32 number) = 0;
};
