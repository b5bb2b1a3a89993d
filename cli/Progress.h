#pragma once

#include <fmt/format.h>

#include <chrono>
#include <cstddef>
#include <string_view>

#include "cli/Console.h"

namespace linewright {

/** A line on a terminal that says how far the work is, several times a second. */
class Progress {
  public:
    Progress(Console& runConsole, std::size_t rows) : console(runConsole), total(rows) {}
    Progress(const Progress&) = delete;
    Progress& operator=(const Progress&) = delete;
    ~Progress() {
        if (isShown) console.err << kEraseLine << std::flush;
    }

    template <class Counts>
    void Show(std::size_t done, const Counts& counts) {
        const auto now = std::chrono::steady_clock::now();
        if (!console.isErrTerminal || now < next) return;
        next = now + std::chrono::milliseconds(200);
        isShown = true;
        console.err << kEraseLine << fmt::format("{:3} %  {}", 100 * done / total, counts.Summary())
                    << std::flush;
    }

  private:
    static constexpr std::string_view kEraseLine = "\r\x1B[K";

    Console& console;
    std::size_t total;
    std::chrono::steady_clock::time_point next =
        std::chrono::steady_clock::now() + std::chrono::milliseconds(500);
    bool isShown = false;
};

}  // namespace linewright
