#include "host/runtime/TextLookUp.h"

#include "host/runtime/Running.h"

namespace host {

const std::u32string* FindText(const std::u32string& key) noexcept {
    const Running* const running = GetRunning();
    return running ? running->strings.Find(key) : nullptr;
}

}  // namespace host
