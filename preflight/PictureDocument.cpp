#include "preflight/PictureDocument.h"

#include <fmt/format.h>
#include <png.h>
#include <tiffio.h>

#include <cmath>
#include <fstream>
#include <iterator>
#include <vector>

#include "merge/Failure.h"

namespace linewright {

namespace {

constexpr double kMillimetresPerInch = 25.4;
constexpr double kLeastDotsPerInch = 20;
constexpr double kMostDotsPerInch = 20'000;

/** A page of pixels, from its size and what the file says of its resolution. */
Page PageOf(int number, double width, double height, std::optional<double> pixelsPerMillimetre,
            std::optional<double> dotsPerInch, const std::string& shown) {
    if (!(width >= 1) || !(height >= 1)) {
        throw Failure(fmt::format("{}: the picture has no pixels", shown));
    }
    if (width * height > kMostPixels) {
        throw Failure(
            fmt::format("{}: the picture has {:.0f} x {:.0f} pixels, more than can be looked at",
                        shown, width, height));
    }
    if (dotsPerInch) pixelsPerMillimetre = *dotsPerInch / kMillimetresPerInch;
    const double stated = pixelsPerMillimetre.value_or(0) * kMillimetresPerInch;
    if (!(stated >= kLeastDotsPerInch && stated <= kMostDotsPerInch)) {
        throw Failure(
            fmt::format("{}: the picture does not say its resolution; --dpi says it", shown));
    }
    Page page;
    page.number = number;
    page.pixelsPerMillimetre = *pixelsPerMillimetre;
    page.width = width / *pixelsPerMillimetre;
    page.height = height / *pixelsPerMillimetre;
    for (GreyRaster* const raster : {&page.grey, &page.red}) {
        raster->width = static_cast<int>(width);
        raster->height = static_cast<int>(height);
        raster->pixels.resize(static_cast<std::size_t>(width * height));
    }
    return page;
}

void SetPixel(Page& page, std::size_t place, unsigned red, unsigned green, unsigned blue) {
    const unsigned grey = (77 * red + 151 * green + 28 * blue) >> 8;
    page.grey.pixels[place] = static_cast<std::uint8_t>(std::min(grey, 255U));
    page.red.pixels[place] = static_cast<std::uint8_t>(std::min(red, 255U));
}

/** A file of pictures, which has no more pixels than it has. */
class PictureDocument : public Document {
  public:
    std::optional<GreyRaster> ReadRegion(const Page& /*page*/, const Area& /*area*/,
                                         double /*pixelsPerMillimetre*/) const override {
        return std::nullopt;
    }

    GreyRaster Picture(const Page& page, double pixelsPerMillimetre) const override {
        const GreyRaster all = ReadPage(page.number).grey;
        const double step = std::max(1.0, page.pixelsPerMillimetre / pixelsPerMillimetre);
        GreyRaster picture{.width = static_cast<int>(all.width / step),
                           .height = static_cast<int>(all.height / step),
                           .pixels = {}};
        for (int y = 0; y < picture.height; ++y) {
            for (int x = 0; x < picture.width; ++x) {
                picture.pixels.push_back(
                    all.At(static_cast<int>(x * step), static_cast<int>(y * step)));
            }
        }
        return picture;
    }
};

class PngDocument : public PictureDocument {
  public:
    PngDocument(const std::filesystem::path& path, std::string shownName,
                std::optional<double> wantedDotsPerInch)
        : shown(std::move(shownName)), dotsPerInch(wantedDotsPerInch) {
        std::ifstream file(path, std::ios::binary);
        content.assign(std::istreambuf_iterator<char>(file), {});
    }

    int PageCount() const override { return 1; }

    Page ReadPage(int number) const override {
        png_image image{};
        image.version = PNG_IMAGE_VERSION;
        if (png_image_begin_read_from_memory(&image, content.data(), content.size()) == 0) {
            Refuse(image);
        }
        image.format = PNG_FORMAT_RGB;
        Page page;
        try {
            page = PageOf(number, image.width, image.height, PngResolution(content), dotsPerInch,
                          shown);
        } catch (...) {
            png_image_free(&image);
            throw;
        }
        std::vector<unsigned char> pixels(PNG_IMAGE_SIZE(image));
        const png_color white{255, 255, 255};
        if (png_image_finish_read(&image, &white, pixels.data(), 0, nullptr) == 0) Refuse(image);
        for (std::size_t place = 0; place < page.grey.pixels.size(); ++place) {
            SetPixel(page, place, pixels[3 * place], pixels[3 * place + 1], pixels[3 * place + 2]);
        }
        return page;
    }

  private:
    [[noreturn]] void Refuse(png_image& image) const {
        const std::string why = image.message;
        png_image_free(&image);
        throw Failure(fmt::format("{}: is no PNG file that can be read: {}", shown, why));
    }

    std::string content;
    std::string shown;
    std::optional<double> dotsPerInch;
};

using TiffFile = std::unique_ptr<TIFF, decltype(&TIFFClose)>;

class TiffDocument : public PictureDocument {
  public:
    TiffDocument(std::filesystem::path filePath, std::string shownName,
                 std::optional<double> wantedDotsPerInch)
        : path(std::move(filePath)), shown(std::move(shownName)), dotsPerInch(wantedDotsPerInch) {
        TIFFSetErrorHandler(nullptr);
        TIFFSetWarningHandler(nullptr);
        const TiffFile file = Open();
        pages = TIFFNumberOfDirectories(file.get());
        if (pages == 0) throw Failure(fmt::format("{}: has no pages", shown));
    }

    int PageCount() const override { return static_cast<int>(pages); }

    Page ReadPage(int number) const override {
        const TiffFile file = Open();
        std::uint32_t width = 0;
        std::uint32_t height = 0;
        if (TIFFSetDirectory(file.get(), static_cast<tdir_t>(number - 1)) == 0 ||
            TIFFGetField(file.get(), TIFFTAG_IMAGEWIDTH, &width) == 0 ||
            TIFFGetField(file.get(), TIFFTAG_IMAGELENGTH, &height) == 0) {
            Refuse();
        }
        Page page = PageOf(number, width, height, ResolutionOf(file.get()), dotsPerInch, shown);
        std::vector<std::uint32_t> pixels(page.grey.pixels.size());
        if (TIFFReadRGBAImageOriented(file.get(), width, height, pixels.data(), ORIENTATION_TOPLEFT,
                                      1) == 0) {
            Refuse();
        }
        for (std::size_t place = 0; place < pixels.size(); ++place) {
            // Upon white; the library has multiplied colours by their alpha.
            const unsigned white = 255 - TIFFGetA(pixels[place]);
            SetPixel(page, place, TIFFGetR(pixels[place]) + white, TIFFGetG(pixels[place]) + white,
                     TIFFGetB(pixels[place]) + white);
        }
        return page;
    }

  private:
    TiffFile Open() const {
        TiffFile file(TIFFOpen(path.c_str(), "r"), TIFFClose);
        if (!file) Refuse();
        return file;
    }

    [[noreturn]] void Refuse() const {
        throw Failure(fmt::format("{}: is no TIFF file that can be read", shown));
    }

    static std::optional<double> ResolutionOf(TIFF* file) {
        float resolution = 0;
        std::uint16_t unit = RESUNIT_INCH;
        if (TIFFGetField(file, TIFFTAG_XRESOLUTION, &resolution) == 0) return std::nullopt;
        TIFFGetFieldDefaulted(file, TIFFTAG_RESOLUTIONUNIT, &unit);
        if (unit == RESUNIT_CENTIMETER) return resolution / 10;
        if (unit == RESUNIT_INCH) return resolution / kMillimetresPerInch;
        return std::nullopt;
    }

    std::filesystem::path path;
    std::string shown;
    std::optional<double> dotsPerInch;
    unsigned pages = 0;
};

}  // namespace

std::optional<double> PngResolution(std::string_view png) {
    const auto number = [&png](std::size_t at) {
        std::uint32_t value = 0;
        for (std::size_t byte = 0; byte < 4; ++byte) {
            value = value << 8 | static_cast<unsigned char>(png[at + byte]);
        }
        return value;
    };
    constexpr std::size_t kSignature = 8;
    constexpr std::size_t kAroundData = 12;
    for (std::size_t at = kSignature; at + kAroundData <= png.size();) {
        const std::size_t length = number(at);
        const std::string_view name = png.substr(at + 4, 4);
        if (length > png.size() || name == "IDAT") break;
        if (name == "pHYs" && length == 9 && at + kAroundData + length <= png.size()) {
            constexpr char kMetre = 1;
            if (png[at + 16] != kMetre) return std::nullopt;
            return number(at + 8) / 1000.0;
        }
        at += kAroundData + length;
    }
    return std::nullopt;
}

std::unique_ptr<Document> OpenPng(const std::filesystem::path& path, const std::string& shown,
                                  std::optional<double> dotsPerInch) {
    return std::make_unique<PngDocument>(path, shown, dotsPerInch);
}

std::unique_ptr<Document> OpenTiff(const std::filesystem::path& path, const std::string& shown,
                                   std::optional<double> dotsPerInch) {
    return std::make_unique<TiffDocument>(path, shown, dotsPerInch);
}

}  // namespace linewright
