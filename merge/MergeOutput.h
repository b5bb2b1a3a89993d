#pragma once

#include <memory>
#include <optional>
#include <ostream>
#include <string>

#include "merge/BlockWriter.h"
#include "merge/OutputFile.h"

namespace linewright {

/** A file that is written with the rows, or standard output. */
class MergeOutput {
  public:
    /** "-" is standard output, which is borrowed. For a lasting one see OutputFile. */
    MergeOutput(const std::string& fileName, std::ostream& standardOutput, Encoding encoding,
                bool isLasting);

    /** Takes text. */
    BlockWriter& Writer() { return *writer; }
    /** Takes bytes as they are, while nothing waits in the writer. */
    ByteSink& Bytes() { return *sink; }
    void Keep();

    // Of a lasting one.

    /** Goes on behind the first `size` bytes. Throws Failure where there are fewer. */
    void GoOnAt(std::uint64_t size);
    /** Puts what was written on the disk itself, and says how much it is. */
    std::uint64_t Sync();
    /** Puts a draft of that size into its place, unless that was done already. */
    void KeepWhole(std::uint64_t size);
    void Discard() { file->Discard(); }

  private:
    std::string name;
    std::unique_ptr<ByteSink> sink;
    OutputFile* file = nullptr;
    std::optional<BlockWriter> writer;
};

}  // namespace linewright
