#pragma once

#include <string>
#include <vector>

namespace linewright {

/** A ZIP file in memory, the same bytes for the same parts. Throws DrawingFailure, with the
 *  library's words, where it cannot be made. */
class ZipPackage {
  public:
    /** The first part, stored as it is, says what the package is (ISO/IEC 26300-3, 3.3). */
    explicit ZipPackage(const std::string& mediaType) { parts.push_back({"mimetype", mediaType}); }

    void Add(std::string name, std::string content) {
        parts.push_back({std::move(name), std::move(content)});
    }

    std::string Bytes() const;

  private:
    struct Part {
        std::string name;
        std::string content;
    };
    std::vector<Part> parts;
};

}  // namespace linewright
