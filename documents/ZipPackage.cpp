#include "documents/ZipPackage.h"

#include <zip.h>

#include <memory>
#include <utility>

#include "render/DrawingFailure.h"

namespace linewright {

namespace {

[[noreturn]] void Fail(const char* words) {
    throw DrawingFailure(DrawingProblem::Reason::kLibrary, {std::string("libzip, ") + words});
}

/** What the library says of itself. */
class ZipError {
  public:
    ZipError() { zip_error_init(&error); }
    ZipError(const ZipError&) = delete;
    ZipError& operator=(const ZipError&) = delete;
    ~ZipError() { zip_error_fini(&error); }

    zip_error_t* Place() { return &error; }
    [[noreturn]] void Throw() { Fail(zip_error_strerror(&error)); }

  private:
    zip_error_t error{};
};

using Source = std::unique_ptr<zip_source_t, decltype(&zip_source_free)>;
using Archive = std::unique_ptr<zip_t, decltype(&zip_discard)>;

std::string WholeOf(zip_source_t* source) {
    std::string bytes;
    if (zip_source_open(source) != 0) Fail(zip_error_strerror(zip_source_error(source)));
    char block[1 << 16];
    zip_int64_t count = 0;
    while ((count = zip_source_read(source, block, sizeof block)) > 0) {
        bytes.append(block, static_cast<std::size_t>(count));
    }
    zip_source_close(source);
    if (count < 0) Fail(zip_error_strerror(zip_source_error(source)));
    return bytes;
}

}  // namespace

std::string ZipPackage::Bytes() const {
    ZipError error;
    const Source target(zip_source_buffer_create(nullptr, 0, 0, error.Place()), zip_source_free);
    if (!target) error.Throw();
    // The archive gives up its share when it is closed, and we read from ours.
    zip_source_keep(target.get());
    Archive archive(zip_open_from_source(target.get(), ZIP_TRUNCATE, error.Place()), zip_discard);
    if (!archive) {
        zip_source_free(target.get());
        error.Throw();
    }
    const auto must = [&archive](bool isDone) {
        if (!isDone) Fail(zip_strerror(archive.get()));
    };
    // 1 January 1980, the first day that there is.
    constexpr zip_uint16_t kFirstDay = (1 << 5) + 1;
    for (const Part& part : parts) {
        Source content(
            zip_source_buffer(archive.get(), part.content.data(), part.content.size(), 0),
            zip_source_free);
        must(content != nullptr);
        const zip_int64_t place =
            zip_file_add(archive.get(), part.name.c_str(), content.get(), ZIP_FL_ENC_UTF_8);
        must(place >= 0);
        static_cast<void>(content.release());
        const auto index = static_cast<zip_uint64_t>(place);
        const zip_int32_t method = index == 0 ? ZIP_CM_STORE : ZIP_CM_DEFLATE;
        must(zip_set_file_compression(archive.get(), index, method, 0) == 0);
        must(zip_file_set_dostime(archive.get(), index, 0, kFirstDay, 0) == 0);
    }
    must(zip_close(archive.get()) == 0);
    static_cast<void>(archive.release());
    return WholeOf(target.get());
}

}  // namespace linewright
