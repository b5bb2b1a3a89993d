#include "requests/HostBlock.h"

#include <algorithm>
#include <limits>

#include "ISession.h"
#include "requests/RequestFailure.h"

namespace linewright {

HostBlock::HostBlock(std::string_view bytes)
    : memory(GetExecutionContextSession(), UseDefaultIID()) {
    if (memory && bytes.size() <= std::numeric_limits<uint32>::max()) {
        length = static_cast<uint32>(bytes.size());
        block = memory->Allocate(length);
    }
    if (!block) throw RequestFailure(FailureReason::kNoMemory);
    std::copy(bytes.begin(), bytes.end(), static_cast<char*>(block));
}

HostBlock::~HostBlock() {
    memory->Deallocate(block);
}

}  // namespace linewright
