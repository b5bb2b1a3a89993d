#pragma once

#include <nlohmann/json.hpp>
#include <optional>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

#include "core/EncodeBarcodeData.h"
#include "meaning/Meaning.h"
#include "tests/JsonLines.h"
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

/** A row of a file below tests/. */
struct MeaningRow : JsonLine {
    std::string file;
};

inline std::vector<MeaningRow> MeaningRows(const std::string& file) {
    std::vector<MeaningRow> rows;
    for (JsonLine& line : ReadJsonLines(LINEWRIGHT_TESTS "/" + file))
        rows.push_back({std::move(line), file});
    return rows;
}

inline void PrintTo(const MeaningRow& row, std::ostream* out) {
    *out << row.file << ':' << row.number << ' ' << row.fields;
}

}  // namespace linewright
