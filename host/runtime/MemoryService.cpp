#include "host/runtime/MemoryService.h"

#include "host/runtime/Running.h"

namespace host {

MemoryService::MemoryService(IPMUnknown* boss)
    : CPMUnknown<IMemoryService>(boss), fMemory(GetRunning()->memory) {}

}  // namespace host
