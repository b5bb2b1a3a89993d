#include "IDFile.h"

#include "host/runtime/FilePath.h"
#include "host/runtime/HostText.h"
#include "host/runtime/Make.h"
#include "host/runtime/Paths.h"

struct IDFile::Path {
    PMString text;
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
    return fPath->text;
}

void IDFile::SetString(const PMString& fullPath) {
    fPath->text = fullPath;
    fPath->text.SetTranslatable(kFalse);
}

namespace host {

std::filesystem::path PathOf(const IDFile& file) {
    return PathFromUtf8(ToUtf8(file.GetString()));
}

void SetPath(IDFile& file, const std::filesystem::path& path) {
    file.SetString(PlainText(Utf8FromPath(path)));
}

}  // namespace host
