#pragma once

#include <gtest/gtest.h>
#include <zint.h>

#include <memory>
#include <string>
#include <vector>

namespace linewright {

/** What libzint draws for a text: a row of modules ("1" dark) for each row of its symbol. Nothing,
 *  and a failed test, when it refuses the text. `option2` is of the symbology's own meaning. */
inline std::vector<std::string> ZintRows(int symbology, const std::string& text, int option2 = 0) {
    const std::unique_ptr<zint_symbol, decltype(&ZBarcode_Delete)> symbol(ZBarcode_Create(),
                                                                          &ZBarcode_Delete);
    symbol->symbology = symbology;
    symbol->option_2 = option2;
    const auto* const bytes = reinterpret_cast<const unsigned char*>(text.data());
    if (ZBarcode_Encode(symbol.get(), bytes, static_cast<int>(text.size())) >= ZINT_ERROR) {
        ADD_FAILURE() << testing::PrintToString(text) << ": " << symbol->errtxt;
        return {};
    }
    std::vector<std::string> rows;
    for (int row = 0; row < symbol->rows; ++row) {
        std::string modules;
        for (int module = 0; module < symbol->width; ++module)
            modules += symbol->encoded_data[row][module / 8] >> (module % 8) & 1 ? '1' : '0';
        rows.push_back(modules);
    }
    return rows;
}

/** The same of a symbol with one row. */
inline std::string ZintModules(int symbology, const std::string& text, int option2 = 0) {
    const std::vector<std::string> rows = ZintRows(symbology, text, option2);
    EXPECT_EQ(rows.size(), 1u);
    return rows.empty() ? "" : rows[0];
}

}  // namespace linewright
