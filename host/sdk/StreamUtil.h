#pragma once

#include "IDFile.h"
#include "IPMStream.h"

constexpr uint32 kOpenIn = 1;
constexpr uint32 kOpenOut = 2;
constexpr uint32 kOpenTrunc = 4;

/** Makes streams. The caller owns the reference returned; nullptr when the file cannot be opened.
 */
class PUBLIC_DECL StreamUtil {
  public:
    static IPMStream* CreateFileStreamRead(const IDFile& file, uint32 mode, OSType type,
                                           OSType creator);
    static IPMStream* CreateFileStreamWrite(const IDFile& file, uint32 mode, OSType type,
                                            OSType creator);
};
