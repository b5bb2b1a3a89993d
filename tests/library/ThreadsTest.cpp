#include <atomic>
#include <cstdio>
#include <thread>
#include <vector>

#include "tests/library/OpenLibrary.h"

// Many threads at once: for the thread sanitizer, which a build of its own has.

namespace linewright {

namespace {

class ThreadsTest : public OpenLibrary {};

TEST_F(ThreadsTest, ManyThreadsCallAtOnce) {
    constexpr int kThreads = 4;
    constexpr int kRounds = 200;
    std::atomic<int> mistakes = 0;
    const auto work = [&](int number) {
        for (int round = 0; round < kRounds; ++round) {
            if (Open() != LINEWRIGHT_DONE) ++mistakes;
            const std::string data = std::to_string(1000000 + 1000 * number + round);
            const linewright_barcode* barcode = nullptr;
            if (linewright_encode(Text("ean8"), Text(data), nullptr, &barcode) != LINEWRIGHT_DONE ||
                Said(barcode->human_readable).substr(0, data.size()) != data)
                ++mistakes;
            linewright_free_barcode(barcode);
            const std::vector<int32_t> offsets{0, 3, 7};
            linewright_rows rows = LINEWRIGHT_ROWS_INIT;
            rows.count = 2;
            rows.type = linewright_string("ean8");
            rows.data = {data.data(), data.size(), offsets.data(), 32};
            const linewright_results* results = nullptr;
            if (linewright_encode_many(&rows, nullptr, &results) != LINEWRIGHT_DONE) ++mistakes;
            linewright_free_results(results);
            if (linewright_encode(Text("ean8"), Text("x"), nullptr, &barcode) != LINEWRIGHT_REFUSED)
                ++mistakes;
            linewright_free_barcode(barcode);
            linewright_places other = Places();
            other.locale = linewright_string("deDE");
            if (linewright_open(&other) != LINEWRIGHT_OPEN_OTHERWISE || *linewright_error() == '\0')
                ++mistakes;
            if (linewright_close() != LINEWRIGHT_DONE) ++mistakes;
        }
    };
    std::vector<std::thread> threads;
    threads.reserve(kThreads);
    for (int number = 0; number < kThreads; ++number) threads.emplace_back(work, number);
    for (std::thread& thread : threads) thread.join();
    EXPECT_EQ(mistakes, 0);
}

}  // namespace

}  // namespace linewright
