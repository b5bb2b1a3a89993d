#pragma once

#include <QSettings>
#include <vector>

#include "requests/BarcodeOutcome.h"

namespace linewright {

/** The barcodes that left the window last, in the settings, where another window of this program
 *  may add to them at the same time. */
class RecentBarcodes {
  public:
    static constexpr std::size_t kMost = 20;

    explicit RecentBarcodes(QSettings& userSettings) : settings(userSettings) {}

    /** The last one first. */
    std::vector<BarcodeWish> All() const;
    void Add(const BarcodeWish& wish);
    void Clear();
    /** Their types, the last one first, each once. */
    std::vector<const BarcodeType*> Types() const;

  private:
    void Store(const std::vector<BarcodeWish>& wishes);

    QSettings& settings;
};

}  // namespace linewright
