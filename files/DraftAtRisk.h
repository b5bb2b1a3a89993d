#pragma once

#include <atomic>
#include <cstddef>
#include <string>

namespace files {

/** A draft that is removed when the process ends by a signal (INT, TERM, HUP or PIPE, where the
 *  program does nothing of its own about it) or by std::quick_exit. Counts for up to 64 drafts at
 *  a time; further ones stay behind then. */
class DraftAtRisk {
  public:
    /** `folder` is an open descriptor, which outlives this. The draft need not be there yet. */
    DraftAtRisk(int folder, const std::string& name);
    DraftAtRisk(const DraftAtRisk&) = delete;
    DraftAtRisk& operator=(const DraftAtRisk&) = delete;
    ~DraftAtRisk();

  private:
    struct Entry* entry = nullptr;
};

}  // namespace files
