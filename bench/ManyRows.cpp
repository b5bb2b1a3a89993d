#include "bench/ManyRows.h"

#include <cstdint>
#include <filesystem>
#include <random>
#include <stdexcept>
#include <string>
#include <vector>

#include "include/linewright.h"

namespace linewright::bench {

namespace {

linewright_text Text(std::string_view text) {
    return {text.data(), text.size()};
}

void Require(linewright_status status) {
    if (status != LINEWRIGHT_DONE) throw std::runtime_error(linewright_error());
}

}  // namespace

std::size_t EncodeMany(const Case& benchCase, std::size_t count) {
    const std::filesystem::path folder =
        std::filesystem::temp_directory_path() /
        ("linewright-bench-" + std::to_string(std::random_device()()));
    std::filesystem::create_directories(folder);
    const std::string name = folder.string();
    linewright_places places = LINEWRIGHT_PLACES_INIT;
    places.config_folder = places.app_folder = Text(name);
    places.plugin = Text(LINEWRIGHT_PLUGIN);
    Require(linewright_open(&places));

    std::string bytes;
    std::vector<std::int64_t> offsets{0};
    for (std::size_t row = 0; row < count; ++row) {
        bytes += benchCase.rows[row % kRowCount];
        offsets.push_back(static_cast<std::int64_t>(bytes.size()));
    }
    linewright_rows rows = LINEWRIGHT_ROWS_INIT;
    rows.count = count;
    rows.type = Text(benchCase.type);
    rows.data = {bytes.data(), bytes.size(), offsets.data(), 64};
    linewright_options options = LINEWRIGHT_OPTIONS_INIT;
    options.check = benchCase.addCheck;
    options.ratio = kRatio;
    const linewright_results* results = nullptr;
    Require(linewright_encode_many(&rows, &options, &results));
    const std::size_t written = results->texts.size;
    linewright_free_results(results);
    Require(linewright_close());
    std::filesystem::remove_all(folder);
    return written;
}

}  // namespace linewright::bench
