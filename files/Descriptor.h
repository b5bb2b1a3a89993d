#pragma once

#include <unistd.h>

#include <utility>

namespace files {

/** A file descriptor, closed with it. */
class Descriptor {
  public:
    Descriptor() = default;
    explicit Descriptor(int number) : descriptor(number) {}
    Descriptor(Descriptor&& other) noexcept : descriptor(std::exchange(other.descriptor, -1)) {}
    Descriptor& operator=(Descriptor&& other) noexcept {
        std::swap(descriptor, other.descriptor);
        return *this;
    }
    ~Descriptor() { Close(); }

    explicit operator bool() const { return descriptor >= 0; }
    int Get() const { return descriptor; }
    /** False when the system says that something was lost. */
    bool Close() {
        const int closed = std::exchange(descriptor, -1);
        return closed < 0 || close(closed) == 0;
    }

  private:
    int descriptor = -1;
};

}  // namespace files
