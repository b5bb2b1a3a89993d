#include "cli/Installation.h"

#include "cli/Platform.h"

namespace linewright {

namespace {

std::filesystem::path FromProgram(const char* place) {
    return (ProgramFolder() / place).lexically_normal();
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
