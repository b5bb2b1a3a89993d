#include "preflight/Document.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>
#include <filesystem>
#include <fstream>

#include "host/runtime/Paths.h"
#include "merge/Failure.h"
#include "preflight/PdfDocument.h"
#include "preflight/PictureDocument.h"
#include "text/Readable.h"

namespace linewright {

namespace {

/** A PDF file's header stands within its first 1,024 bytes. */
constexpr std::size_t kHead = 1024;

std::string HeadOf(const std::filesystem::path& path, const std::string& shown) {
    std::error_code error;
    const auto status = std::filesystem::status(path, error);
    if (status.type() == std::filesystem::file_type::not_found) {
        throw Failure(fmt::format("{}: there is no such file", shown));
    }
    if (error || status.type() != std::filesystem::file_type::regular) {
        throw Failure(fmt::format("{}: is no file that can be read", shown));
    }
    std::ifstream file(path, std::ios::binary);
    std::string head(kHead, '\0');
    file.read(head.data(), static_cast<std::streamsize>(head.size()));
    if (!file.is_open() || file.bad()) {
        throw Failure(fmt::format("{}: cannot be read: {}", shown, std::strerror(errno)));
    }
    head.resize(static_cast<std::size_t>(file.gcount()));
    if (head.empty()) throw Failure(fmt::format("{}: is empty", shown));
    return head;
}

}  // namespace

std::unique_ptr<Document> OpenDocument(const std::string& name, std::optional<double> dotsPerInch) {
    const std::filesystem::path path = host::PathFromUtf8(name);
    const std::string shown = Readable(name);
    const std::string head = HeadOf(path, shown);
    if (head.starts_with("\x89PNG\r\n\x1A\n")) return OpenPng(path, shown, dotsPerInch);
    using namespace std::string_view_literals;
    constexpr std::array kTiffHeads{"II*\0"sv, "MM\0*"sv, "II+\0"sv, "MM\0+"sv};
    if (std::any_of(kTiffHeads.begin(), kTiffHeads.end(),
                    [&head](std::string_view each) { return head.starts_with(each); })) {
        return OpenTiff(path, shown, dotsPerInch);
    }
    if (head.find("%PDF-") != head.npos) return OpenPdf(path, shown);
    throw Failure(fmt::format("{}: is neither PDF nor PNG nor TIFF", shown));
}

}  // namespace linewright
