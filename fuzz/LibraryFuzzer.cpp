#include <fuzzer/FuzzedDataProvider.h>

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <vector>

#include "include/linewright.h"

// Calls of the library in C with arguments of all kinds: what comes back must be whole, and say
// either that there is a barcode or why there is none.

namespace {

linewright_text Text(const std::string& text) {
    return {text.data(), text.size()};
}

void Require(bool isSo, const char* what) {
    if (isSo) return;
    std::fprintf(stderr, "%s\n", what);
    std::abort();
}

/** Reads every byte of a text. */
std::size_t Sum(linewright_text text) {
    std::size_t sum = 0;
    for (std::size_t i = 0; i < text.size; ++i) sum += static_cast<unsigned char>(text.data[i]);
    return sum;
}

void OpenOnce() {
    static const std::string folder =
        (std::filesystem::temp_directory_path() / "linewright-fuzz").string();
    static const bool isOpen = [] {
        std::filesystem::create_directories(folder);
        linewright_places places = LINEWRIGHT_PLACES_INIT;
        places.config_folder = Text(folder);
        places.app_folder = Text(folder);
        Require(linewright_open(&places) == LINEWRIGHT_DONE, linewright_error());
        return true;
    }();
    static_cast<void>(isOpen);
}

std::string TypeName(FuzzedDataProvider& input) {
    const linewright_type* types = nullptr;
    std::size_t count = 0;
    linewright_types(&types, &count);
    const std::size_t choice = input.ConsumeIntegralInRange<std::size_t>(0, count);
    if (choice == count) return input.ConsumeRandomLengthString(300);
    return {types[choice].name.data, types[choice].name.size};
}

linewright_options Options(FuzzedDataProvider& input) {
    linewright_options options = LINEWRIGHT_OPTIONS_INIT;
    options.flags = input.ConsumeIntegralInRange<uint32_t>(0, 15);
    options.check = input.ConsumeIntegralInRange<uint32_t>(0, 300);
    options.ratio = input.ConsumeBool() ? 2.5 : input.ConsumeFloatingPoint<double>();
    return options;
}

void EncodeOne(FuzzedDataProvider& input) {
    const linewright_options options = Options(input);
    const std::string type = TypeName(input);
    const std::string data = input.ConsumeRemainingBytesAsString();
    const linewright_barcode* barcode = nullptr;
    const linewright_status status = linewright_encode(Text(type), Text(data), &options, &barcode);
    if (options.check > 255) {
        Require(status == LINEWRIGHT_BAD_ARGUMENT && barcode == nullptr, "check");
        return;
    }
    Require(status == LINEWRIGHT_DONE || status == LINEWRIGHT_REFUSED, linewright_error());
    Require((status == LINEWRIGHT_DONE) == (barcode->reason <= LINEWRIGHT_WARNED), "reason");
    Require(status == LINEWRIGHT_DONE || barcode->text.size == 0, "a refused text");
    Require(barcode->position >= -1 && barcode->position < static_cast<int64_t>(data.size() + 1),
            "position");
    Sum(barcode->bytes);
    Sum(barcode->human_readable);
    Sum(barcode->message);
    for (std::size_t i = 0; i < barcode->warning_count; ++i) Sum(barcode->warnings[i]);
    linewright_free_barcode(barcode);
}

void EncodeMany(FuzzedDataProvider& input) {
    const linewright_options options = Options(input);
    const std::string type = TypeName(input);
    const auto count = input.ConsumeIntegralInRange<std::size_t>(0, 20);
    std::vector<int32_t> offsets;
    for (std::size_t i = 0; i <= count; ++i) {
        const auto last = offsets.empty() ? 0 : offsets.back();
        const bool isWild = input.ConsumeProbability<float>() < 0.02F;
        offsets.push_back(isWild ? input.ConsumeIntegral<int32_t>()
                                 : last + input.ConsumeIntegralInRange(0, 30));
    }
    const std::string data = input.ConsumeRemainingBytesAsString();
    linewright_rows rows = LINEWRIGHT_ROWS_INIT;
    rows.count = count;
    rows.type = Text(type);
    rows.data = {data.data(), data.size(), offsets.data(), 32};
    const linewright_results* results = nullptr;
    const linewright_status status = linewright_encode_many(&rows, &options, &results);
    Require((status == LINEWRIGHT_DONE) == (results != nullptr), "results");
    if (results == nullptr) return;
    Require(results->count == count, "count");
    Sum({results->texts.bytes, results->texts.size});
    linewright_free_results(results);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* bytes, std::size_t size) {
    OpenOnce();
    FuzzedDataProvider input(bytes, size);
    if (input.ConsumeBool()) {
        EncodeMany(input);
    } else {
        EncodeOne(input);
    }
    return 0;
}
