#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "library/Opened.h"

namespace linewright {

/** What became of rows, as it is handed out. */
class Results {
  public:
    /** Room for so many rows. */
    explicit Results(std::size_t count);
    Results(const Results&) = delete;
    Results& operator=(const Results&) = delete;

    /** The next row, of which the text has been appended to Texts(). */
    void Add(int32_t status, uint8_t reason);
    std::string& Texts() { return texts; }
    static const linewright_results* HandOut(std::unique_ptr<Results> results);
    static void TakeBack(const linewright_results* results);

  private:
    void Describe();

    linewright_results fields{};  // first: what is handed out has the object's own address
    std::string texts;
    std::vector<int64_t> offsets;
    std::vector<int32_t> shortOffsets;
    std::vector<int32_t> statuses;
    std::vector<uint8_t> reasons;
};

std::unique_ptr<Results> EncodeMany(Opened& opened, const linewright_rows& rows,
                                    const linewright_options& options);

}  // namespace linewright
