#include <fcntl.h>
#include <fmt/format.h>
#include <poll.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <optional>
#include <system_error>

#include "files/Descriptor.h"
#include "merge/Failure.h"
#include "merge/Worker.h"
#include "merge/Workers.h"

namespace linewright {

namespace {

using files::Descriptor;

/** A worker gets its next chunk while it is at one. */
constexpr std::size_t kMostChunks = 2;
/** So much is taken out of a pipe at once, and a pipe holds, where the system grants it. */
constexpr std::size_t kPiece = std::size_t{1} << 17;
constexpr int kPipeCapacity = 1 << 20;

[[noreturn]] void FailForSystem(std::string_view what) {
    throw Failure(fmt::format("{}: {}", what, std::generic_category().message(errno)));
}

struct Ends {
    Descriptor read;
    Descriptor write;
};

Ends NewPipe() {
    std::array<int, 2> numbers{};
    if (pipe2(numbers.data(), O_CLOEXEC) != 0) FailForSystem("no pipe for --jobs");
    fcntl(numbers[1], F_SETPIPE_SZ, kPipeCapacity);
    return {Descriptor(numbers[0]), Descriptor(numbers[1])};
}

/** A worker's ends of its pipes. It ends where the other side does. */
class WorkerPipe : public Pipe {
  public:
    WorkerPipe(int chunkDescriptor, int answerDescriptor)
        : chunks(chunkDescriptor), answers(answerDescriptor) {}

    std::size_t Read(char* block, std::size_t capacity) override {
        ssize_t count = 0;
        do count = read(chunks, block, capacity);
        while (count < 0 && errno == EINTR);
        return count < 0 ? 0 : static_cast<std::size_t>(count);
    }
    void Write(std::string_view bytes) override {
        while (!bytes.empty()) {
            const ssize_t count = write(answers, bytes.data(), bytes.size());
            if (count < 0 && errno == EINTR) continue;
            if (count < 0) std::_Exit(EXIT_FAILURE);
            bytes.remove_prefix(static_cast<std::size_t>(count));
        }
    }

  private:
    int chunks;
    int answers;
};

/** As long as it lives, writing into a pipe that nobody reads any more is a failure and no signal.
 */
class WithoutPipeSignal {
  public:
    WithoutPipeSignal() {
        sigemptyset(&pipeSignal);
        sigaddset(&pipeSignal, SIGPIPE);
        pthread_sigmask(SIG_BLOCK, &pipeSignal, &before);
    }
    WithoutPipeSignal(const WithoutPipeSignal&) = delete;
    WithoutPipeSignal& operator=(const WithoutPipeSignal&) = delete;
    ~WithoutPipeSignal() {
        const timespec now{};
        while (sigtimedwait(&pipeSignal, nullptr, &now) == SIGPIPE) continue;
        pthread_sigmask(SIG_SETMASK, &before, nullptr);
    }

  private:
    sigset_t pipeSignal{};
    sigset_t before{};
};

/** How many bytes a pipe takes at once; none where nobody reads it any more. */
std::optional<std::size_t> WriteSome(int descriptor, std::string_view bytes) {
    const WithoutPipeSignal without;
    const ssize_t count = write(descriptor, bytes.data(), bytes.size());
    if (count >= 0) return static_cast<std::size_t>(count);
    if (errno == EAGAIN || errno == EINTR) return 0;
    return std::nullopt;
}

}  // namespace

struct Workers::Worker {
    pid_t process = -1;
    Descriptor chunks;
    Descriptor answers;
    std::size_t open = 0;

    Worker() = default;
    Worker(const Worker&) = delete;
    Worker& operator=(const Worker&) = delete;
    /** It holds nothing that is worth an orderly end. */
    ~Worker() {
        if (process < 0) return;
        kill(process, SIGKILL);
        Wait();
    }

    int Wait() {
        int status = 0;
        while (waitpid(process, &status, 0) < 0 && errno == EINTR) continue;
        process = -1;
        return status;
    }

    /** False where it ended before so many bytes came. */
    bool Read(char* bytes, std::size_t size) const {
        while (size > 0) {
            const ssize_t count = read(answers.Get(), bytes, size);
            if (count < 0 && errno == EINTR) continue;
            if (count <= 0) return false;
            bytes += count;
            size -= static_cast<std::size_t>(count);
        }
        return true;
    }
};

Workers::Workers(unsigned count, AnswerTaker& taker, const Work& work)
    : answers(taker), piece(kPiece, '\0') {
    for (unsigned i = 0; i < count; ++i) {
        Ends forChunks = NewPipe();
        Ends forAnswers = NewPipe();
        auto worker = std::make_unique<Worker>();
        worker->process = fork();
        if (worker->process < 0) FailForSystem("no process for --jobs");
        if (worker->process == 0) {
            // Who holds another one's pipe keeps it from seeing the end.
            for (const auto& other : workers) {
                other->chunks.Close();
                other->answers.Close();
            }
            forChunks.write.Close();
            forAnswers.read.Close();
            WorkerPipe pipe(forChunks.read.Get(), forAnswers.write.Get());
            ChunkPipe chunks(pipe);
            AnswerPipe answer(pipe);
            work(chunks, answer);
            std::_Exit(EXIT_SUCCESS);
        }
        worker->chunks = std::move(forChunks.write);
        worker->answers = std::move(forAnswers.read);
        fcntl(worker->chunks.Get(), F_SETFL, O_NONBLOCK);
        workers.push_back(std::move(worker));
    }
}

Workers::~Workers() = default;

Workers::Worker& Workers::LeastBusy() {
    return **std::min_element(workers.begin(), workers.end(),
                              [](const auto& a, const auto& b) { return a->open < b->open; });
}

void Workers::Give(const Chunk& chunk) {
    while (LeastBusy().open == kMostChunks) TakeFrame();
    Worker& worker = LeastBusy();
    ++worker.open;
    open.emplace_back(&worker, chunk.end);
    const ChunkHead head{chunk.line, chunk.text.size()};
    for (std::string_view bytes :
         {std::string_view(reinterpret_cast<const char*>(&head), sizeof head),
          std::string_view(chunk.text)}) {
        while (!bytes.empty()) {
            const std::optional<std::size_t> count = WriteSome(worker.chunks.Get(), bytes);
            if (!count) FailFor(worker);
            bytes.remove_prefix(*count);
            if (!bytes.empty()) Wait(worker.chunks.Get(), POLLOUT);
        }
    }
}

/** Takes answers until a descriptor is ready: false where there are no more before it is. */
bool Workers::Wait(int descriptor, short events) {
    while (!open.empty()) {
        std::array<pollfd, 2> waiting{
            {{descriptor, events, 0}, {open.front().first->answers.Get(), POLLIN, 0}}};
        if (poll(waiting.data(), waiting.size(), -1) < 0) continue;
        if (waiting[0].revents != 0) return true;
        TakeFrame();
    }
    return false;
}

void Workers::TakeUntilInput() {
    Wait(STDIN_FILENO, POLLIN);
}

void Workers::TakeAll() {
    while (!open.empty()) TakeFrame();
}

/** Takes the next part of the answer to the first chunk that is open. A worker sends each as one.
 */
void Workers::TakeFrame() {
    Worker& worker = *open.front().first;
    FrameHead head;
    if (!worker.Read(reinterpret_cast<char*>(&head), sizeof head)) FailFor(worker);
    std::string text;
    while (head.size > 0) {
        const std::size_t size = std::min<std::uint64_t>(head.size, piece.size());
        if (!worker.Read(piece.data(), size)) FailFor(worker);
        head.size -= size;
        const std::string_view bytes(piece.data(), size);
        if (head.kind == FrameKind::kOutput) {
            answers.TakeOutput(bytes);
        } else if (head.kind == FrameKind::kRejects) {
            answers.TakeRejects(bytes);
        } else {
            text += bytes;
        }
    }
    if (head.kind == FrameKind::kFailure) throw Failure(text);
    if (head.kind == FrameKind::kCounts) answers.TakeCounts(CountsOf(text), head.line);
    if (head.kind != FrameKind::kEnd) return;
    --worker.open;
    const std::uint64_t end = open.front().second;
    open.pop_front();
    answers.TakeEnd(end);
}

void Workers::FailFor(Worker& worker) const {
    kill(worker.process, SIGKILL);
    const int status = worker.Wait();
    throw Failure(WIFSIGNALED(status)
                      ? fmt::format("a process of --jobs was ended by signal {}", WTERMSIG(status))
                      : std::string("a process of --jobs ended"));
}

}  // namespace linewright
