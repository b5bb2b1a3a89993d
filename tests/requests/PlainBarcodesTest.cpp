#include "requests/PlainBarcodes.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <random>
#include <vector>

#include "host/runtime/Paths.h"
#include "requests/BarcodeOutcome.h"
#include "tests/RandomData.h"
#include "tests/Rounds.h"

namespace linewright {

namespace {

namespace fs = std::filesystem;

/** What is made the short way is what MakeBarcode makes, for rows of all kinds in any order. */
TEST(PlainBarcodes, AreThoseOfMakeBarcode) {
    const fs::path folder =
        fs::temp_directory_path() / ("linewright-plain-" + std::to_string(std::random_device()()));
    fs::create_directories(folder);
    Service service({.plugin = LINEWRIGHT_PLUGIN,
                     .roamingFolder = host::Utf8FromPath(folder),
                     .appFolder = host::Utf8FromPath(folder)});
    const std::vector<std::string> types{"ean13",
                                         "EAN-13",
                                         "_QVT_BARCODE_EAN13_",
                                         "_QVT_BARCODE_EAN13_ and more",
                                         "upca",
                                         "ean8",
                                         "code128",
                                         "gs1-128",
                                         "ITF",
                                         "imb",
                                         "no type",
                                         "classic-codabar",
                                         "msi",
                                         "postnet",
                                         std::string(300, '_'),
                                         "code39"};
    const std::vector<std::string_view> alphabets{"0123456789", "0123456789", "AB09 é~(", "0\x80"};
    RandomData random(1100);
    int plain = 0;
    {
        PlainBarcodes barcodes(service);
        for (int round = 0; round < Rounds(); ++round) {
            const BarcodeWish wish{
                .type = types[random.Number(0, types.size() - 1)],
                .data = random.Text(alphabets[random.Number(0, alphabets.size() - 1)],
                                    random.Number(0, 22)),
                .checkCharacter = static_cast<uint8>(random.Number(0, 9) == 0 ? 1 : 0),
                .ratio = random.Number(0, 1) == 0 ? 2.0 : 3.0,
            };
            const auto made = barcodes.Make(wish.type, wish.data, wish.checkCharacter, wish.ratio);
            if (!made) continue;
            ++plain;
            const BarcodeOutcome outcome = MakeBarcode(service, wish);
            ASSERT_TRUE(outcome.IsMade()) << wish.type << ' ' << wish.data;
            ASSERT_EQ(outcome.status, 0);
            ASSERT_TRUE(outcome.Warnings().empty()) << wish.type << ' ' << wish.data;
            ASSERT_EQ(made->fontString, outcome.bytes);
            ASSERT_EQ(&made->type, outcome.type);
        }
    }
    EXPECT_GT(plain, Rounds() / 10);
    const host::Leaks leaks = service.Stop();
    EXPECT_EQ(leaks.blocks, 0U);
    EXPECT_EQ(leaks.references, 0U);
    fs::remove_all(folder);
}

}  // namespace

}  // namespace linewright
