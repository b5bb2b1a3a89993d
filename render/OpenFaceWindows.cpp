#include <cstdio>
#include <memory>

#include "render/FreeType.h"

namespace linewright {

namespace {

// FreeType opens files by names in the program's own code page, which need not have all characters.

std::FILE* FileOf(FT_Stream stream) {
    return static_cast<std::FILE*>(stream->descriptor.pointer);
}

/** FreeType's way to ask: reads, or, for no bytes, only goes there and says whether that went
 * wrong. */
unsigned long Read(FT_Stream stream, unsigned long offset, unsigned char* bytes,
                   unsigned long count) {
    const int status = std::fseek(FileOf(stream), static_cast<long>(offset), SEEK_SET);
    if (count == 0) return status == 0 ? 0 : 1;
    return status == 0 ? static_cast<unsigned long>(std::fread(bytes, 1, count, FileOf(stream)))
                       : 0;
}

void Close(FT_Stream stream) {
    std::fclose(FileOf(stream));
    delete stream;
}

}  // namespace

FT_Error OpenFace(const std::filesystem::path& file, FT_Face& face) {
    std::FILE* const opened = _wfopen(file.c_str(), L"rb");
    if (opened == nullptr) return FT_Err_Cannot_Open_Resource;
    auto stream = std::make_unique<FT_StreamRec>();
    stream->descriptor.pointer = opened;
    stream->read = Read;
    stream->close = Close;
    stream->size = static_cast<unsigned long>(std::filesystem::file_size(file));
    FT_Open_Args arguments{};
    arguments.flags = FT_OPEN_STREAM;
    // Closed by FreeType, where it does not open the face too.
    arguments.stream = stream.release();
    return FT_Open_Face(FreeTypeLibrary(), &arguments, 0, &face);
}

}  // namespace linewright
