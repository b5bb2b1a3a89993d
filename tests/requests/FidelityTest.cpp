#include "requests/Fidelity.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <random>

#include "host/runtime/Paths.h"

namespace linewright {

namespace {

struct Row {
    const char* type;
    const char* data;
    bool isCheckWanted;
    Fidelity fidelity;
};

constexpr Fidelity kExact = Fidelity::kExact;
constexpr Fidelity kChanged = Fidelity::kChanged;
constexpr Fidelity kUntold = Fidelity::kUntold;

constexpr Row kRows[] = {
    {"ean13", "400638133393", false, kExact},
    {"ean13", "4006381333931", false, kExact},
    {"ean13", "4006381333932", false, kChanged},
    {"ean13", "12", false, kChanged},
    {"ean8", "1234567", false, kExact},
    {"ean8", "123", false, kChanged},
    {"upca", "01234500006", false, kExact},
    {"upca", "01234500006512", false, kChanged},
    {"upce", "0123456", false, kExact},
    {"classic-ean13", "97803064061551995", false, kExact},
    {"code128", "ABCabc123", false, kExact},
    {"code128", "A\nB", false, kExact},
    {"code128", " A", false, kChanged},
    {"code128", "A~009B", false, kChanged},
    {"code128", "(01)09501101530003", false, kExact},
    {"code128", "(01)0950110153000~m13", false, kChanged},
    {"code128", "é", false, kChanged},
    {"classic-code128b", "ABCabc123", false, kExact},
    {"classic-code128c", "1234", false, kExact},
    {"classic-code128c", "123", false, kChanged},
    {"code39", "FIX-42", false, kExact},
    {"code39", "FIX-42", true, kExact},
    {"classic-code39", "FIX-42", false, kExact},
    {"classic-code39ascii", "Fix-42", false, kExact},
    {"codabar", "1234-5678", false, kExact},
    {"classic-codabar", "1234-5678", false, kExact},
    {"i2of5", "1234", false, kExact},
    {"i2of5", "123", true, kExact},
    {"i2of5", "123", false, kChanged},
    {"i2of5", "1234", true, kChanged},
    {"msi", "1234567", true, kExact},
    {"classic-msi", "1234567", false, kExact},
    {"postnet", "555551237", false, kExact},
    {"postnet", "55555-1237", false, kChanged},
    {"classic-postnet", "555551237", false, kExact},
    {"imb", "0123456709498765432101234567891", false, kUntold},
    {"i2of5-text", "1234", false, kUntold},
    {"classic-i2of5-text", "1234", false, kUntold},
};

TEST(FidelityTest, IsExactOnlyWhereTheBarsSayWhatWasTyped) {
    namespace fs = std::filesystem;
    const fs::path folder = fs::temp_directory_path() /
                            ("linewright-fidelity-" + std::to_string(std::random_device()()));
    fs::create_directories(folder / "app");
    Service service(HostOptions{.plugin = LINEWRIGHT_PLUGIN,
                                .roamingFolder = host::Utf8FromPath(folder),
                                .appFolder = host::Utf8FromPath(folder / "app"),
                                .locale = "enUS"});
    for (const Row& row : kRows) {
        const BarcodeWish wish{.type = row.type,
                               .data = row.data,
                               .checkCharacter = static_cast<uint8>(row.isCheckWanted ? 1 : 0)};
        const BarcodeOutcome outcome = MakeBarcode(service, wish);
        ASSERT_TRUE(outcome.IsMade()) << row.type << ' ' << row.data << outcome.hint;
        EXPECT_EQ(FidelityOf(outcome, wish), row.fidelity)
            << row.type << ' ' << row.data << ": " << outcome.meaning.barsSay;
    }
    service.Stop();
    std::error_code ignored;
    fs::remove_all(folder, ignored);
}

}  // namespace

}  // namespace linewright
