#include "StreamUtil.h"

#include "host/runtime/FilePath.h"
#include "host/runtime/FileStream.h"

IPMStream* StreamUtil::CreateFileStreamRead(const IDFile& file, uint32 mode, OSType, OSType) try {
    return mode == kOpenIn ? host::OpenForReading(host::PathOf(file)) : nullptr;
} catch (...) {
    return nullptr;
}

IPMStream* StreamUtil::CreateFileStreamWrite(const IDFile& file, uint32 mode, OSType, OSType) try {
    return mode == (kOpenOut | kOpenTrunc) ? host::OpenForWriting(host::PathOf(file)) : nullptr;
} catch (...) {
    return nullptr;
}
