#pragma once

#include "BaseType.h"

namespace host {

/** Base of the host's objects: counts the references to one, and those to all. A new object has
 *  one reference, its maker's; without any it deletes itself. */
class Counted {
  public:
    Counted(const Counted&) = delete;
    Counted& operator=(const Counted&) = delete;

    /** The references to all objects that are alive and not abandoned. */
    static uint32 LiveReferences();
    /** Gives up all live objects when the host stops: they count no more and are never deleted, so
     *  that whoever leaked a reference may still release it. */
    static void AbandonAll();

  protected:
    Counted();
    virtual ~Counted();
    void CountUp() const;
    void CountDown() const;
    bool IsAbandoned() const { return fAbandoned; }

  private:
    mutable uint32 fReferences = 1;
    bool fAbandoned = false;
};

}  // namespace host
