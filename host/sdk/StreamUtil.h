#pragma once

#include "IDFile.h"
#include "IPMStream.h"

constexpr uint32 kOpenIn = 1;
constexpr uint32 kOpenOut = 2;
constexpr uint32 kOpenTrunc = 4;

/** Makes streams: those that read with the mode kOpenIn, those that write with kOpenOut |
 * kOpenTrunc. Type and creator are of no use on this system. The caller owns the reference
 * returned; nullptr when the file cannot be opened: it is a folder, it may not be written, there is
 * none to read. */
class PUBLIC_DECL StreamUtil {
  public:
    static IPMStream* CreateFileStreamRead(const IDFile& file, uint32 mode, OSType type,
                                           OSType creator);
    static IPMStream* CreateFileStreamWrite(const IDFile& file, uint32 mode, OSType type,
                                            OSType creator);
};
