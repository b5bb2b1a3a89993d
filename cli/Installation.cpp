#include "cli/Installation.h"

#include "cli/Platform.h"
#include "merge/Failure.h"

namespace linewright {

namespace {

std::filesystem::path FromProgram(const char* place) {
    const std::filesystem::path folder = ProgramFolder();
    // Else it would be sought below the current folder, which anybody may have filled.
    if (folder.empty()) throw Failure("the system does not say where this program lies");
    return (folder / place).lexically_normal();
}

}  // namespace

std::filesystem::path PlugInFile() {
    return FromProgram(LINEWRIGHT_PLUGIN_FILE);
}

std::filesystem::path DrawingModuleFile() {
    return FromProgram(LINEWRIGHT_DRAWING_FILE);
}

std::filesystem::path FontFolder() {
    return FromProgram(LINEWRIGHT_FONT_FOLDER);
}

}  // namespace linewright
