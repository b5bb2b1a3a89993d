#include "cli/Installation.h"

#include "cli/Platform.h"
#include "merge/Failure.h"

namespace linewright {

namespace {

std::filesystem::path FromProgram(std::string_view place) {
    const std::filesystem::path folder = ProgramFolder();
    // Else it would be sought below the current folder, which anybody may have filled.
    if (folder.empty()) throw Failure("the system does not say where this program lies");
    return (folder / place).lexically_normal();
}

}  // namespace

std::filesystem::path ModuleFile(const std::string& name) {
    return FromProgram(LINEWRIGHT_LIBRARY_FOLDER "/" + name + LINEWRIGHT_MODULE_SUFFIX);
}

std::filesystem::path PlugInFile() {
    return ModuleFile("Linewright");
}

std::filesystem::path FontFolder() {
    return FromProgram(LINEWRIGHT_FONT_FOLDER);
}

}  // namespace linewright
