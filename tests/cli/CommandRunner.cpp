#include "tests/cli/CommandRunner.h"

#include <fstream>
#include <iterator>
#include <random>
#include <sstream>

#include "cli/Command.h"
#include "host/runtime/Paths.h"

namespace linewright {

CommandRunner::CommandRunner() {
    std::random_device random;
    folder = std::filesystem::temp_directory_path() /
             host::PathFromUtf8("linewright-cli-é-" + std::to_string(random()) +
                                std::to_string(random()));
    std::filesystem::create_directories(folder / "config");
    std::filesystem::create_directories(folder / "app");
}

CommandRunner::~CommandRunner() {
    std::error_code ignored;
    std::filesystem::remove_all(folder, ignored);
}

CommandRunner::Result CommandRunner::Run(std::vector<std::string> arguments,
                                         const std::string& input) const {
    // A lone "--" ends the options: ours go in front.
    const std::vector<std::string> host{"--plugin",      LINEWRIGHT_PLUGIN, "--config-dir",
                                        Place("config"), "--app-dir",       Place("app")};
    arguments.insert(arguments.begin(), host.begin(), host.end());
    std::istringstream in(input);
    std::ostringstream out;
    std::ostringstream err;
    Console console{in, out, err, false};
    const int status = RunCommand(arguments, console);
    return {status, out.str(), err.str()};
}

std::string CommandRunner::Place(const std::string& name) const {
    return host::Utf8FromPath(folder / host::PathFromUtf8(name));
}

std::string CommandRunner::Write(const std::string& name, const std::string& content) const {
    std::ofstream(folder / host::PathFromUtf8(name), std::ios::binary) << content;
    return Place(name);
}

std::string CommandRunner::Read(const std::string& name) const {
    std::ifstream file(folder / host::PathFromUtf8(name), std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

}  // namespace linewright
