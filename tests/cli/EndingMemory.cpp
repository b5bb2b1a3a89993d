// The operators new and delete of the whole process. The environment variable LINEWRIGHT_MEMORY
// says how many allocations succeed once the program has said what is to be done when one does not;
// from then on each fails as that of a system without memory does.

#include <atomic>
#include <cstdlib>
#include <new>

namespace {

long AllocationsLeft() {
    const char* const text = std::getenv("LINEWRIGHT_MEMORY");
    return text == nullptr ? -1 : std::atol(text);
}

bool Fails() {
    static std::atomic<long> left = AllocationsLeft();
    if (left < 0 || std::get_new_handler() == nullptr) return false;
    return left == 0 || left-- == 0;
}

void* Allocate(std::size_t size) {
    while (Fails()) std::get_new_handler()();
    void* const block = std::malloc(size == 0 ? 1 : size);
    if (block == nullptr) std::abort();
    return block;
}

}  // namespace

void* operator new(std::size_t size) {
    return Allocate(size);
}
void* operator new[](std::size_t size) {
    return Allocate(size);
}
void operator delete(void* block) noexcept {
    std::free(block);
}
void operator delete[](void* block) noexcept {
    std::free(block);
}
void operator delete(void* block, std::size_t) noexcept {
    std::free(block);
}
void operator delete[](void* block, std::size_t) noexcept {
    std::free(block);
}
