#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

#include "types/BarcodeType.h"

namespace linewright {

/** So many of the 12-digit numbers of a column for EAN-13 are whole numbers of UPC-A. */
struct UpcANumbers {
    std::size_t count;
    std::size_t of;

    bool operator==(const UpcANumbers&) const = default;
};

/** Looks through a column for UPC-A numbers that are to become EAN-13, where a second check digit
 *  is put behind them. A tenth of any numbers look like it: nothing is to be said of one. */
class UpcAColumn {
  public:
    explicit UpcAColumn(UpcANumbers found = {0, 0}) : numbers(found) {}

    /** A row; `type` may be nullptr. */
    void Take(const BarcodeType* type, std::string_view data);
    /** The rows of a column that follows. */
    void Add(const UpcAColumn& following);
    const UpcANumbers& Numbers() const { return numbers; }
    /** What is worth a note: where it is more than half of them. */
    std::optional<UpcANumbers> Found() const;

  private:
    UpcANumbers numbers;
};

}  // namespace linewright
