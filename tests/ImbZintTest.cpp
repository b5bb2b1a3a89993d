#include <gtest/gtest.h>
#include <zint.h>

#include <array>
#include <memory>
#include <random>
#include <string>

#include "imb/ImbBarMap.h"
#include "imb/ImbEncode.h"
#include "tests/ImbDecoder.h"
#include "tests/ImbRandomCode.h"

namespace linewright {
namespace {

/** What libzint draws for a code, as bar letters; empty when it refuses the code. Its symbol has
 *  three rows (ascenders, trackers, descenders) with a bar in every second module. */
std::string ZintBars(const ImbCode& code) {
    const std::unique_ptr<zint_symbol, decltype(&ZBarcode_Delete)> symbol(ZBarcode_Create(),
                                                                          &ZBarcode_Delete);
    symbol->symbology = BARCODE_USPS_IMAIL;
    const std::string text = code.tracking + (code.routing.empty() ? "" : "-" + code.routing);
    if (ZBarcode_Encode(symbol.get(), reinterpret_cast<const unsigned char*>(text.c_str()), 0) !=
        0) {
        ADD_FAILURE() << text << ": " << symbol->errtxt;
        return "";
    }
    EXPECT_EQ(symbol->rows, 3);
    EXPECT_EQ(symbol->width, 2 * static_cast<int>(kImbBarCount) - 1);
    const auto isDark = [&](int row, std::size_t module) {
        return (symbol->encoded_data[row][module / 8] >> (module % 8) & 1) != 0;
    };
    std::string bars;
    for (std::size_t module = 0; module < 2 * kImbBarCount; module += 2) {
        EXPECT_TRUE(isDark(1, module));
        const bool ascender = isDark(0, module);
        const bool descender = isDark(2, module);
        bars += ascender ? (descender ? 'F' : 'A') : (descender ? 'D' : 'T');
    }
    return bars;
}

TEST(ImbZint, DrawsTheSameBars) {
    std::mt19937 random(3200);
    for (int count = 0; count < 10'000; ++count) {
        const ImbCode code = RandomImbCode(random, kImbRoutingLengths[count % 4]);
        std::array<char, kImbBarCount + 1> bars{};
        ASSERT_EQ(ImbEncode(code.tracking.c_str(), code.routing.c_str(), bars.data()),
                  USPS_FSB_ENCODER_API_SUCCESS);
        ASSERT_EQ(bars.data(), ZintBars(code)) << code.tracking << '-' << code.routing;
    }
}

}  // namespace
}  // namespace linewright
