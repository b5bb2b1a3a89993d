#pragma once

#include <cstdint>
#include <filesystem>
#include <memory>
#include <string>
#include <string_view>

namespace files {

/** How a new file takes its place. */
struct Manner {
    /** What is a device or a pipe is written directly; else it is refused. */
    bool writesDevices = true;
    /** A file that holds the same bytes already is left alone, with its time. */
    bool leavesSame = false;
    /** Whatever file or link has the name is replaced, and nothing of it is taken over; else links
     *  are followed, a read-only file is refused, and the mode stays. */
    bool startsAfresh = false;
    /** The draft stays whatever becomes of the process, under a name that follows from the file's:
     *  who writes the file the next time goes on with it. See OwnFile for what may be there. */
    bool isLasting = false;
};

/**
 * A file that appears whole or not at all. It is written beside its place as a draft, under a name
 * that nobody can guess, locked and readable by its user alone; Keep puts it into its place with
 * the mode of the file that was there, or that of any new file. Without Keep nothing is left of it,
 * nor when the process ends by INT, TERM, HUP or PIPE. A draft that a process left behind which was
 * killed is removed by a later one in the same folder, once it is an hour old.
 *
 * A link is followed when its owner is the user or root, also where nothing lies at its end; those
 * of others are refused. On Windows every symbolic link is.
 *
 * Once an operation has failed all further ones do, and Error() is the first reason. One thread at
 * a time; throws nothing but std::bad_alloc.
 */
class NewFile {
  public:
    explicit NewFile(const std::filesystem::path& path, Manner manner = {});
    NewFile(const NewFile&) = delete;
    NewFile& operator=(const NewFile&) = delete;
    ~NewFile();

    bool Write(std::string_view bytes);

    /** How much of a lasting draft was there. */
    std::uint64_t Found() const;
    /** Leaves the first `size` bytes of a draft, behind which it is written on. */
    bool Cut(std::uint64_t size);
    /** Puts what was written so far on the disk itself. */
    bool Sync();
    /** Removes a draft, a lasting one too. Nothing is written afterwards. */
    void Discard();

    /** Puts the file into its place, on the disk itself. Nothing is written afterwards. */
    bool Keep();

    /** What went wrong, to follow the file's name: "is read-only"; "" as long as nothing has. */
    const std::string& Error() const;

  private:
    struct State;
    std::unique_ptr<State> state;
};

}  // namespace files
