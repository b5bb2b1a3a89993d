#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "presets/Preset.h"

namespace linewright {

/** Presets that a user has named, each a file NAME.toml of a folder. Names are UTF-8. */
class PresetFolder {
  public:
    /** The folder need not be there until something is stored. */
    explicit PresetFolder(std::filesystem::path place) : folder(std::move(place)) {}

    /** In alphabetical order; none where the folder cannot be read. */
    std::vector<std::string> Names() const;
    /** The file of a preset, as UTF-8. */
    std::string FileOf(const std::string& name) const;
    /** Throws PresetFailure, as the others do. */
    DrawingWish Read(const std::string& name) const { return ReadPreset(FileOf(name)); }
    /** Replaces the one that has the name. Throws for a name that a file cannot have on every
     *  system: empty, longer than 100 bytes, with a dot in front, a dot or a blank behind, or with
     *  control characters or one of / \ : * ? " < > |. */
    void Store(const std::string& name, const DrawingWish& wish) const;
    void Remove(const std::string& name) const;

  private:
    std::filesystem::path folder;
};

}  // namespace linewright
