#include "IDFile.h"

#include "host/runtime/FilePath.h"
#include "host/runtime/HostText.h"
#include "host/runtime/Make.h"
#include "host/runtime/Paths.h"

/** The path itself: its text is not always UTF-8. */
struct IDFile::Path {
    std::filesystem::path path;
};

struct IDFilePath {
    static std::filesystem::path& Of(const IDFile& file) { return file.fPath->path; }
};

IDFile::IDFile() : fPath(host::Make<Path>()) {}

IDFile::IDFile(const IDFile& other) : IDFile() {
    *this = other;
}

IDFile& IDFile::operator=(const IDFile& other) {
    if (this != &other) *fPath = *other.fPath;
    return *this;
}

IDFile::~IDFile() {
    delete fPath;
}

PMString IDFile::GetString() const {
    PMString text = host::PlainText(host::Utf8FromPath(fPath->path));
    text.SetTranslatable(kFalse);
    return text;
}

void IDFile::SetString(const PMString& fullPath) {
    fPath->path = host::PathFromUtf8(host::ToUtf8(fullPath));
}

namespace host {

std::filesystem::path PathOf(const IDFile& file) {
    return IDFilePath::Of(file);
}

void SetPath(IDFile& file, const std::filesystem::path& path) {
    IDFilePath::Of(file) = path;
}

}  // namespace host
