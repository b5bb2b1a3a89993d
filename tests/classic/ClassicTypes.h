#pragma once

#include <string>
#include <vector>

#include "core/EncoderTable.h"
#include "core/PreferencesRecord.h"
#include "core/Status.h"

namespace linewright {

/** How a type refuses data: what then stands in the block, and the status. */
struct Refusal {
    std::string marker;
    int16 status;
};

/** A classic type and what it may answer. */
struct ClassicType {
    std::string name;
    std::size_t code;
    std::string goodData;
    std::string badData;
    std::vector<Refusal> refusals;
};

inline const std::vector<ClassicType>& ClassicTypes() {
    static const std::vector<ClassicType> types{
        {"_BARCODE_POSTNET_", 1, "12345-6789", "1234", {{"***Bad Zip Code***", -1}}},
        {"_BARCODE_USPS_IM_",
         2,
         "0123456709498765432101234",
         "09234567094987654321",
         {{"** Barcode Length Error **", -6300},
          {"** Barcode Data Error **", -6301},
          {"** Barcode Process Error **", -6302}}},
        {"_BARCODE_CODABAR_",
         3,
         "12+34",
         "12A34",
         {{"***Bad Codabar***", -1}, {"***Codabar Data Too Long***", -1}}},
        {"_BARCODE_CODE128A_", 4, "A\tB", "ab", {{"***Bad Code 128 A***", -1}}},
        {"_BARCODE_CODE128B_", 5, "Ab", "a\tb", {{"***Bad Code 128 B***", -1}}},
        {"_BARCODE_CODE128C_", 6, "123", "12A", {{"***Bad Code 128 C***", -1}}},
        {"_BARCODE_CODE39_", 7, "CODE 39", "code39", {{"***Bad Code 39***", -1}}},
        {"_BARCODE_CODE39ASCII_", 8, "Code 39", "\x81", {{"***Bad Code 39***", -1}}},
        {"_BARCODE_EAN13_", 10, "590123412345", "5901234123457", {{"***Bad EAN-13***", -1}}},
        {"_BARCODE_I2OF5_", 11, "123", "12A", {{"***Bad Int. 2 of 5***", -1}}},
        {"_BARCODE_I2OF5TEXT_", 12, "123", "12A", {{"***Bad Int. 2 of 5***", -1}}},
        {"_BARCODE_JAN13_", 13, "49012345678912", "x", {{"***Bad JAN-13***", -1}}},
        {"_BARCODE_MSIPLESSEY_",
         14,
         "1234",
         "12A",
         {{"***Bad MSI Plessey***", -1},
          {"***Bad MSI Plessey Bar Code, Data Too Long***", -1},
          {"***Invalid MSI Plessey Mod 11 Data***", -4}}},
        {"_BARCODE_UPCA_", 15, "0360002914552495", "036000291452", {{"***Bad UPC-A***", -1}}},
        {"_BARCODE_UPCE_",
         16,
         "0123456",
         "1123456",
         {{"***Bad UPC-E***", -2}, {"***Bad UPC-E***", -3}}},
    };
    return types;
}

/** Encodes by the table, past the dispatcher: nothing is trimmed or converted. */
inline int16 EncodeClassic(const ClassicType& type, DataBlock data) {
    return static_cast<int16>((*encoders)[type.code]({data, 0, 2.0, nullptr, nullptr}));
}

/** Gives the preferences back as they were. */
class KeptPreferences {
  public:
    KeptPreferences() = default;
    KeptPreferences(const KeptPreferences&) = delete;
    KeptPreferences& operator=(const KeptPreferences&) = delete;
    ~KeptPreferences() { preferences = saved; }

  private:
    LinewrightPrefsRecord saved = preferences;
};

}  // namespace linewright
