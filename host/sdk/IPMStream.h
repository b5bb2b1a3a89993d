#pragma once

#include "IPMUnknown.h"

using uchar = unsigned char;

enum StreamState { kStreamStateGood, kStreamStateEOF, kStreamStateFailure };

/** A stream of bytes, either read or written. Integers are stored little-endian. */
class IPMStream : public IPMUnknown {
  public:
    virtual bool16 IsReading() const = 0;
    /** Moves up to `count` bytes between buffer and stream; returns how many it moved. */
    virtual int32 XferByte(uchar* buffer, int32 count) = 0;
    virtual int32 XferInt32(int32& value) = 0;
    virtual StreamState GetStreamState() const = 0;
    /** Makes what was written the file's content, whole or, on a failure, not at all. A stream
     *  that is released without having been closed leaves the file as it was. */
    virtual void Close() = 0;
};
