#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace linewright {

/** The command run inside the test, with folders of its own that nobody's settings are in. */
class CommandRunner {
  public:
    struct Result {
        int status;
        std::string out;
        std::string err;
    };

    CommandRunner();
    CommandRunner(const CommandRunner&) = delete;
    CommandRunner& operator=(const CommandRunner&) = delete;
    ~CommandRunner();

    /** Runs it with arguments (behind which the host's options are put) and standard input. */
    Result Run(std::vector<std::string> arguments, const std::string& input = "") const;

    /** A place in a folder that is removed at the end, as the command takes it. */
    std::string Place(const std::string& name) const;
    std::string Write(const std::string& name, const std::string& content) const;
    std::string Read(const std::string& name) const;
    std::filesystem::path Folder() const { return folder; }

  private:
    std::filesystem::path folder;
};

}  // namespace linewright
