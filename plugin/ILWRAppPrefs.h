#pragma once

#include "IPMUnknown.h"
#include "core/PluginID.h"

/** One opaque block of bytes that the application database keeps. Main thread only. */
class ILWRAppPrefs : public IPMUnknown {
  public:
    enum { kDefaultIID = linewright::IID_ILWRAPPPREFS };

    /** A copy of the block, which the caller owns, and its size; nullptr and 0 when nothing is
     *  stored or there is no memory. */
    virtual uint8* CopyBlock(uint32* size) const = 0;
    /** Stores a copy of `size` bytes in place of what was stored, or nothing for nullptr. Without
     *  memory for the copy the stored block stays. */
    virtual void SetBlock(const uint8* block, uint32 size) = 0;
};
