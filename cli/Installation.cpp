#include "cli/Installation.h"

#include "cli/Platform.h"

namespace linewright {

namespace {

std::filesystem::path FromProgram(std::string_view place) {
    return (ProgramFolder() / place).lexically_normal();
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
