#include "host/runtime/Unreadable.h"

#include <cstdio>

#include "host/runtime/Paths.h"

namespace fs = std::filesystem;

namespace host {

void Unreadable::Add(const fs::path& path, const std::string& reason) {
    if (!fPaths.insert(path).second) return;
    std::fprintf(stderr, "linewright-host: %s cannot be read: %s; it is left as it is\n",
                 Utf8FromPath(path).c_str(), reason.c_str());
}

bool Unreadable::Holds(const fs::path& path) const {
    for (fs::path place = path;; place = place.parent_path()) {
        if (fPaths.contains(place)) return true;
        if (place == place.parent_path()) return false;
    }
}

}  // namespace host
