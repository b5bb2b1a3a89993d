#include "preflight/Program.h"

#include <fcntl.h>
#include <fmt/format.h>
#include <poll.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <csignal>
#include <cstring>

#include "merge/Failure.h"
#include "text/Readable.h"

extern char** environ;

namespace linewright {

namespace {

using Clock = std::chrono::steady_clock;

constexpr std::size_t kLongestError = 4096;

class Pipe {
  public:
    Pipe() {
        if (::pipe2(ends.data(), O_CLOEXEC) != 0) {
            throw Failure(fmt::format("no pipe to a program can be had: {}", std::strerror(errno)));
        }
    }
    Pipe(const Pipe&) = delete;
    Pipe& operator=(const Pipe&) = delete;
    ~Pipe() {
        CloseInput();
        ::close(ends[0]);
    }

    int Output() const { return ends[0]; }
    int Input() const { return ends[1]; }
    void CloseInput() {
        if (ends[1] >= 0) ::close(ends[1]);
        ends[1] = -1;
    }

  private:
    std::array<int, 2> ends{-1, -1};
};

/** A running program, which does not outlive this. */
class Child {
  public:
    Child(const std::vector<std::string>& words, const Pipe& output, const Pipe& error) {
        posix_spawn_file_actions_t actions;
        posix_spawn_file_actions_init(&actions);
        posix_spawn_file_actions_addopen(&actions, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
        posix_spawn_file_actions_adddup2(&actions, output.Input(), STDOUT_FILENO);
        posix_spawn_file_actions_adddup2(&actions, error.Input(), STDERR_FILENO);
        std::vector<char*> arguments;
        arguments.reserve(words.size() + 1);
        for (const std::string& word : words) arguments.push_back(const_cast<char*>(word.c_str()));
        arguments.push_back(nullptr);
        const int failed =
            ::posix_spawnp(&id, arguments[0], &actions, nullptr, arguments.data(), environ);
        posix_spawn_file_actions_destroy(&actions);
        if (failed == ENOENT) {
            throw Failure(fmt::format(
                "there is no program {}, which reads PDF files; it is one of poppler's", words[0]));
        }
        if (failed != 0) {
            throw Failure(fmt::format("{} cannot be run: {}", words[0], std::strerror(failed)));
        }
    }
    Child(const Child&) = delete;
    Child& operator=(const Child&) = delete;
    ~Child() {
        if (id <= 0) return;
        ::kill(id, SIGKILL);
        Wait();
    }

    /** Whether it ended by itself with exit status 0. */
    bool Wait() {
        int status = 0;
        while (::waitpid(id, &status, 0) < 0 && errno == EINTR) continue;
        id = 0;
        return WIFEXITED(status) && WEXITSTATUS(status) == 0;
    }

  private:
    pid_t id = 0;
};

/** Appends what is there to read, at most `room` bytes; false at the end. */
bool Take(int descriptor, std::string& text, std::size_t room) {
    std::array<char, 1 << 16> block;
    const ssize_t size = ::read(descriptor, block.data(), block.size());
    if (size < 0 && (errno == EINTR || errno == EAGAIN)) return true;
    if (size <= 0) return false;
    text.append(block.data(), std::min(static_cast<std::size_t>(size), room));
    return true;
}

}  // namespace

ProgramResult RunProgram(const std::vector<std::string>& words, const ProgramLimits& limits) {
    Pipe output;
    Pipe error;
    Child child(words, output, error);
    output.CloseInput();
    error.CloseInput();
    ProgramResult result;
    const auto end = Clock::now() + limits.time;
    std::array<pollfd, 2> waiting{{{output.Output(), POLLIN, 0}, {error.Output(), POLLIN, 0}}};
    while (waiting[0].fd >= 0 || waiting[1].fd >= 0) {
        const auto left =
            std::chrono::duration_cast<std::chrono::milliseconds>(end - Clock::now()).count();
        if (left <= 0) {
            throw Failure(fmt::format("{} took longer than {} s", words[0], limits.time.count()));
        }
        if (::poll(waiting.data(), waiting.size(), static_cast<int>(left)) < 0 && errno != EINTR) {
            throw Failure(fmt::format("{} cannot be waited for", words[0]));
        }
        if (waiting[0].revents != 0 &&
            !Take(output.Output(), result.output, limits.output + 1 - result.output.size())) {
            waiting[0].fd = -1;
        }
        if (waiting[1].revents != 0 &&
            !Take(error.Output(), result.error, kLongestError - result.error.size())) {
            waiting[1].fd = -1;
        }
        if (result.output.size() > limits.output) {
            throw Failure(fmt::format("{} printed more than {} bytes", words[0], limits.output));
        }
    }
    result.isDone = child.Wait();
    result.error = Readable(result.error.substr(0, result.error.find('\n')));
    return result;
}

}  // namespace linewright
