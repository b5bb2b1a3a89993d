// What is so on Unix only: modes, links, devices, pipes and signals.

#include <fcntl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <thread>

#include "files/DraftName.h"
#include "files/FolderLock.h"
#include "files/NewFile.h"
#include "tests/files/TestFolder.h"

namespace fs = std::filesystem;

namespace {

/** Gives a file, or the link itself, to somebody else; false without the right to. */
bool GiveAway(const fs::path& path) {
    constexpr uid_t kSomebody = 12345;
    return lchown(path.c_str(), kSomebody, kSomebody) == 0;
}

bool Write(const fs::path& path, std::string_view content, files::Manner manner = {}) {
    files::NewFile file(path, manner);
    return file.Write(content) && file.Keep();
}

/** Runs a function in a process of its own; its wait status. */
template <class Function>
int InChild(Function function) {
    const pid_t child = fork();
    if (child == 0) {
        function();
        _exit(99);
    }
    int status = 0;
    waitpid(child, &status, 0);
    return status;
}

}  // namespace

class UnixFileTest : public TestFolder {
  protected:
    mode_t ModeOf(const std::string& name) const {
        struct stat status {};
        EXPECT_EQ(lstat((folder / name).c_str(), &status), 0) << name;
        return status.st_mode & 07777;
    }
    std::string Draft() const {
        for (const std::string& name : Entries())
            if (files::IsDraftName(name)) return name;
        return "none";
    }
};

TEST_F(UnixFileTest, HasTheModeOfTheOldFileOrOfAnyNewOne) {
    const mode_t mask = umask(027);
    EXPECT_TRUE(Write(folder / "new", "x"));
    EXPECT_EQ(ModeOf("new"), mode_t{0640});
    for (const mode_t mode : {mode_t{0600}, mode_t{0664}, mode_t{0755}, mode_t{0200}}) {
        chmod((folder / "new").c_str(), mode);
        EXPECT_TRUE(Write(folder / "new", "y"));
        EXPECT_EQ(ModeOf("new"), mode);
    }
    EXPECT_TRUE(Write(folder / "new", "z", {.startsAfresh = true}));
    EXPECT_EQ(ModeOf("new"), mode_t{0640});
    umask(mask);
}

TEST_F(UnixFileTest, IsTheUsersAloneWhileItIsWritten) {
    Put("a", "old");
    chmod((folder / "a").c_str(), 0666);
    files::NewFile file(folder / "a");
    EXPECT_EQ(ModeOf(Draft()), mode_t{0600});
}

TEST_F(UnixFileTest, KeepsAReadOnlyFileFromRootToo) {
    Put("a", "old");
    chmod((folder / "a").c_str(), 0444);
    EXPECT_FALSE(Write(folder / "a", "new"));
    EXPECT_EQ(Get("a"), "old");
    EXPECT_TRUE(Write(folder / "a", "new", {.startsAfresh = true}));
    EXPECT_EQ(Get("a"), "new");
}

TEST_F(UnixFileTest, FollowsLinksAlsoToWhatIsNotThereYet) {
    fs::create_directory(folder / "inner");
    fs::create_symlink("inner/second", folder / "first");
    fs::create_symlink("../there", folder / "inner" / "second");
    EXPECT_TRUE(Write(folder / "first", "made"));
    EXPECT_EQ(Get("there"), "made");
    EXPECT_TRUE(Write(folder / "first", "changed"));
    EXPECT_EQ(Get("there"), "changed");
    EXPECT_TRUE(fs::is_symlink(folder / "first"));
    EXPECT_TRUE(fs::is_symlink(folder / "inner" / "second"));
    fs::create_symlink("round", folder / "round");
    EXPECT_FALSE(Write(folder / "round", "x"));
}

TEST_F(UnixFileTest, ReplacesALinkWhenItStartsAfresh) {
    Put("target", "old");
    fs::create_symlink("target", folder / "link");
    EXPECT_TRUE(Write(folder / "link", "new", {.startsAfresh = true}));
    EXPECT_EQ(Get("target"), "old");
    EXPECT_TRUE(fs::is_regular_file(fs::symlink_status(folder / "link")));
}

TEST_F(UnixFileTest, RefusesLinksThatOthersLaid) {
    Put("precious", "old");
    fs::create_symlink("precious", folder / "link");
    if (!GiveAway(folder / "link")) GTEST_SKIP() << "needs a user who can give files away";
    files::NewFile file(folder / "link");
    EXPECT_EQ(file.Error(), "is a link that belongs to somebody else");
    EXPECT_EQ(Get("precious"), "old");
}

TEST_F(UnixFileTest, WritesDevicesAndPipesThemselves) {
    ASSERT_EQ(mkfifo((folder / "pipe").c_str(), 0600), 0);
    std::string read;
    std::thread reader([&] { read = Get("pipe"); });
    EXPECT_TRUE(Write(folder / "pipe", "through"));
    reader.join();
    EXPECT_EQ(read, "through");
    EXPECT_TRUE(fs::is_fifo(folder / "pipe"));
    EXPECT_TRUE(Write("/dev/null", "x"));
    EXPECT_TRUE(fs::is_character_file("/dev/null"));
    files::NewFile full("/dev/full");
    EXPECT_FALSE(full.Write("x"));
    EXPECT_EQ(full.Error(), "could not be written to its end: No space left on device");
    EXPECT_EQ(files::NewFile(folder / "pipe", {.writesDevices = false}).Error(), "is no file");
}

TEST_F(UnixFileTest, WritesWhatIsOpenUnderTheKernelsNames) {
    int ends[2];
    ASSERT_EQ(pipe(ends), 0);
    EXPECT_TRUE(Write("/proc/self/fd/" + std::to_string(ends[1]), "through"));
    char text[8] = {};
    EXPECT_EQ(read(ends[0], text, sizeof text), 7);
    EXPECT_STREQ(text, "through");
    for (const int end : ends) close(end);
}

TEST_F(UnixFileTest, LeavesTheOldFileWhenThereIsNoSpace) {
    Put("a", "old");
    const int status = InChild([this] {
        signal(SIGXFSZ, SIG_IGN);
        const rlimit most{1000, 1000};
        setrlimit(RLIMIT_FSIZE, &most);
        bool isRefused = false;
        {
            files::NewFile file(folder / "a");
            isRefused = !file.Write(std::string(1001, 'x')) && !file.Keep() &&
                        file.Error() == "could not be written to its end: File too large";
        }
        _exit(isRefused ? 0 : 1);
    });
    EXPECT_EQ(status, 0);
    EXPECT_EQ(Get("a"), "old");
    EXPECT_EQ(Draft(), "none");
}

TEST_F(UnixFileTest, LeavesNoDraftWhenASignalEndsTheProcess) {
    for (const int signalNumber : {SIGINT, SIGTERM, SIGHUP, SIGPIPE}) {
        const int status = InChild([&] {
            files::NewFile first(folder / "a");
            files::NewFile second(folder / "b");
            first.Write("x");
            raise(signalNumber);
        });
        EXPECT_TRUE(WIFSIGNALED(status)) << signalNumber;
        EXPECT_EQ(WTERMSIG(status), signalNumber);
        EXPECT_TRUE(Entries().empty()) << signalNumber;
    }
}

TEST_F(UnixFileTest, LeavesSignalsAsTheyWere) {
    const int status = InChild([&] {
        signal(SIGHUP, SIG_IGN);
        {
            files::NewFile file(folder / "a");
            raise(SIGHUP);
            if (!file.Keep()) _exit(1);
        }
        struct sigaction action {};
        sigaction(SIGTERM, nullptr, &action);
        _exit(action.sa_handler == SIG_DFL ? 0 : 2);
    });
    EXPECT_EQ(status, 0);
}

TEST_F(UnixFileTest, LeavesNoDraftAfterAQuickExit) {
    const int status = InChild([&] {
        files::NewFile file(folder / "a");
        std::quick_exit(3);
    });
    EXPECT_EQ(WEXITSTATUS(status), 3);
    EXPECT_TRUE(Entries().empty());
}

TEST_F(UnixFileTest, CannotHelpADraftOfAProcessThatWasKilled) {
    const int status = InChild([&] {
        files::NewFile file(folder / "a");
        raise(SIGKILL);
    });
    EXPECT_EQ(WTERMSIG(status), SIGKILL);
    const std::string draft = Draft();
    EXPECT_NE(draft, "none");
    EXPECT_TRUE(Write(folder / "a", "x"));
    EXPECT_EQ(Draft(), draft) << "it is not an hour old";
    const timespec longAgo[2] = {{1, 0}, {1, 0}};
    utimensat(AT_FDCWD, (folder / draft).c_str(), longAgo, 0);
    EXPECT_TRUE(Write(folder / "a", "x"));
    EXPECT_EQ(Draft(), "none");
}

TEST_F(UnixFileTest, FolderIsLockedForOtherProcesses) {
    int ready[2];
    ASSERT_EQ(pipe(ready), 0);
    const pid_t child = fork();
    if (child == 0) {
        const files::FolderLock lock(folder);
        if (write(ready[1], "x", 1) != 1) _exit(1);
        usleep(200'000);
        Put("released", "");
        _exit(0);
    }
    char byte = 0;
    ASSERT_EQ(read(ready[0], &byte, 1), 1);
    const files::FolderLock lock(folder);
    EXPECT_TRUE(lock.IsHeld());
    EXPECT_TRUE(fs::exists(folder / "released"));
    waitpid(child, nullptr, 0);
    for (const int end : ready) close(end);
}
