#pragma once

#include "IPMStream.h"
#include "host/runtime/Counted.h"

namespace host {

/** What the host's streams have in common. A stream has no other interface than its own. */
class Stream : public IPMStream, public Counted {
  public:
    IPMUnknown* QueryInterface(PMIID interfaceID) const noexcept override;
    void AddRef() const noexcept override { CountUp(); }
    void Release() const noexcept override { CountDown(); }

    int32 XferByte(uchar* buffer, int32 count) noexcept final;
    int32 XferInt32(int32& value) noexcept final;
    StreamState GetStreamState() const noexcept final { return fState; }

  protected:
    /** Moves the bytes, of which there is at least one; returns fewer at an end or a failure. */
    virtual int32 Move(uchar* buffer, int32 count) = 0;
    void SetState(StreamState state) { fState = state; }

  private:
    StreamState fState = kStreamStateGood;
};

}  // namespace host
