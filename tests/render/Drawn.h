#pragma once

#include <gtest/gtest.h>

#include <string>

#include "core/EncodeBarcodeData.h"
#include "render/BarcodeDrawing.h"
#include "tests/TestBlock.h"
#include "types/BarcodeTypes.h"

namespace linewright {

/** A font string by the encoders linked in, as request 1100 makes it; a failed test when refused.
 */
inline std::string Encoded(std::string_view typeName, const std::string& data, bool isCheckWanted,
                           double ratio) {
    TestBlock block(data);
    const int16 status =
        EncodeBarcodeData(&block.bytes, MakePString(std::string(typeName)), &block.length, 0,
                          nullptr, isCheckWanted ? 1 : 0, ratio, 0, nullptr, nullptr);
    EXPECT_EQ(status, 0) << typeName << ": " << testing::PrintToString(data);
    return block.Text();
}

/** A drawing with the built fonts; a failed test when there is none. */
inline BarcodeDrawing Drawn(std::string_view typeName, const std::string& fontString,
                            const DrawingOptions& options = {}) {
    DrawingProblem problem;
    auto drawing = BarcodeDrawing::Make(LINEWRIGHT_FONTS, *FindTypeByPrefix(typeName), fontString,
                                        options, problem);
    EXPECT_TRUE(drawing) << testing::PrintToString(problem.parameters);
    return std::move(drawing).value();
}

}  // namespace linewright
