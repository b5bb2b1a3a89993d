#pragma once

#include <fstream>
#include <nlohmann/json.hpp>
#include <optional>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

#include "core/EncodeBarcodeData.h"
#include "meaning/Meaning.h"
#include "tests/TestBlock.h"
#include "types/BarcodeTypes.h"

namespace linewright {

/** Data that the encoders linked in made into a font string. */
struct MadeBarcode {
    const BarcodeType* type;
    std::string data;
    bool isUtf8 = false;
    bool isCheckWanted = false;
    Expectation expectation = Expectation::kNone;
    std::string fontString{};

    Meaning MeaningOfIt() const {
        return MeaningOf({*type, data, isUtf8, isCheckWanted, expectation, fontString});
    }
};

/** Whether the encoder takes the data. */
inline bool Make(MadeBarcode& barcode, double ratio = 2.0) {
    TestBlock block(barcode.data);
    const int16 status = EncodeBarcodeData(
        &block.bytes, MakePString(std::string(barcode.type->name)), &block.length,
        barcode.isUtf8 ? 1 : 0, nullptr, barcode.isCheckWanted ? 1 : 0, ratio, 0, nullptr, nullptr);
    barcode.fontString = block.Text();
    return status == 0;
}

/** A line of a file of JSON lines; comments and empty lines are none. */
struct MeaningRow {
    std::string file;
    int line;
    nlohmann::json fields;
};

inline std::vector<MeaningRow> MeaningRows(const std::string& file) {
    std::vector<MeaningRow> rows;
    std::ifstream stream(LINEWRIGHT_TESTS "/" + file, std::ios::binary);
    int number = 0;
    for (std::string line; std::getline(stream, line);) {
        ++number;
        if (line.starts_with('{')) rows.push_back({file, number, nlohmann::json::parse(line)});
    }
    return rows;
}

inline void PrintTo(const MeaningRow& row, std::ostream* out) {
    *out << row.file << ':' << row.line << ' ' << row.fields;
}

}  // namespace linewright
