#pragma once

#include <fmt/format.h>

#include <algorithm>
#include <chrono>
#include <cstdint>
#include <string>
#include <string_view>

#include "cli/Console.h"
#include "merge/RowFile.h"

namespace linewright {

/** A line on a terminal that says how far the work on a file is, several times a second. */
class Progress {
  public:
    explicit Progress(Console& runConsole) : console(runConsole) {}
    Progress(const Progress&) = delete;
    Progress& operator=(const Progress&) = delete;
    ~Progress() {
        if (isShown) console.err << kEraseLine << std::flush;
    }

    void Show(const RowFile& file, std::uint64_t rows) {
        const auto now = Clock::now();
        if (!console.isErrTerminal || now < next) return;
        next = now + std::chrono::milliseconds(200);
        isShown = true;
        const double seconds = std::chrono::duration<double>(now - start).count();
        console.err << kEraseLine << Line(file, rows, seconds) << std::flush;
    }

    /** "12 %  4800 rows, 2400 rows/s, 15 s left"; how far it is and how long it takes only of a
     *  file whose length is known. */
    static std::string Line(const RowFile& file, std::uint64_t rows, double seconds) {
        std::string done =
            fmt::format("{} rows, {:.0f} rows/s", rows, static_cast<double>(rows) / seconds);
        const auto length = file.Length();
        if (!length || *length == 0) return done;
        const double part =
            std::min(1.0, static_cast<double>(file.Position()) / static_cast<double>(*length));
        return fmt::format("{:3.0f} %  {}, {:.0f} s left", 100 * part, done,
                           part > 0 ? seconds / part - seconds : 0);
    }

  private:
    using Clock = std::chrono::steady_clock;
    static constexpr std::string_view kEraseLine = "\r\x1B[K";

    Console& console;
    Clock::time_point start = Clock::now();
    Clock::time_point next = start + std::chrono::milliseconds(500);
    bool isShown = false;
};

}  // namespace linewright
