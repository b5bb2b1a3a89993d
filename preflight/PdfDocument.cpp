#include "preflight/PdfDocument.h"

#include <fmt/format.h>

#include <cmath>

#include "host/runtime/Paths.h"
#include "merge/Failure.h"
#include "preflight/PopplerText.h"
#include "preflight/Program.h"
#include "types/Dimensions.h"

namespace linewright {

namespace {

/** What symbols are found and read at; a larger page gets fewer dots an inch, down to the least. */
constexpr double kDotsPerInch = 300;
constexpr double kLeastDotsPerInch = 100;
constexpr double kMostRegionPixels = 30'000'000;
/** A page's side is drawn this long for its shapes, in points: outlines are rounded to 1/64. */
constexpr double kDrawnSide = 13'000;

class PdfDocument : public Document {
  public:
    PdfDocument(std::string fileName, std::string shownName)
        : name(std::move(fileName)), shown(std::move(shownName)) {
        const ProgramResult result =
            RunProgram({"pdfinfo", "-f", "1", "-l", "1000000", name}, limits);
        if (result.error.find("Incorrect password") != std::string::npos) {
            throw Failure(fmt::format("{}: is encrypted, and opens with a password only", shown));
        }
        const auto read = ReadPdfInfo(result.output);
        if (!result.isDone || !read) {
            throw Failure(
                fmt::format("{}: is no PDF file that poppler can read: {}", shown, result.error));
        }
        facts = *read;
        if (facts.pages == 0) throw Failure(fmt::format("{}: has no pages", shown));
    }

    int PageCount() const override { return facts.pages; }

    Page ReadPage(int number) const override {
        const PageSize size = SizeOf(number);
        const double pixelsPerPoint = ResolutionOf(size, number) / kInch;
        Page page;
        page.number = number;
        page.width = size.width / kMillimetre;
        page.height = size.height / kMillimetre;
        page.pixelsPerMillimetre = pixelsPerPoint * kMillimetre;
        const std::string ppm =
            Run({"pdftoppm", "-cropbox", "-r", fmt::format("{}", pixelsPerPoint * kInch)}, number,
                {name});
        if (!ReadPpm(ppm, page.grey, page.red)) FailToDraw(number);
        page.shapes = ShapesOf(size, number);
        page.texts = ReadPlacedTexts(
            Run({"pdftohtml", "-xml", "-stdout", "-i", "-fontfullname"}, number, {name}),
            page.width);
        return page;
    }

    std::optional<GreyRaster> ReadRegion(const Page& page, const Area& area,
                                         double pixelsPerMillimetre) const override {
        const double pixels =
            area.Width() * area.Height() * pixelsPerMillimetre * pixelsPerMillimetre;
        if (!(pixels < kMostRegionPixels)) return std::nullopt;
        const auto pixel = [pixelsPerMillimetre](double length) {
            return fmt::format("{:.0f}", length * pixelsPerMillimetre);
        };
        const std::string ppm = Run(
            {"pdftoppm", "-cropbox", "-r",
             fmt::format("{}", pixelsPerMillimetre * kInch / kMillimetre), "-x", pixel(area.left),
             "-y", pixel(area.top), "-W", pixel(area.Width()), "-H", pixel(area.Height())},
            page.number, {name});
        GreyRaster grey;
        GreyRaster red;
        if (!ReadPpm(ppm, grey, red)) return std::nullopt;
        return red;
    }

    GreyRaster Picture(const Page& page, double pixelsPerMillimetre) const override {
        GreyRaster grey;
        GreyRaster red;
        const std::string ppm = Run({"pdftoppm", "-cropbox", "-r",
                                     fmt::format("{}", pixelsPerMillimetre * kInch / kMillimetre)},
                                    page.number, {name});
        if (!ReadPpm(ppm, grey, red)) FailToDraw(page.number);
        return grey;
    }

  private:
    [[noreturn]] void FailToDraw(int number) const {
        throw Failure(fmt::format("{}: pdftoppm gives no picture of page {}", shown, number));
    }

    PageSize SizeOf(int number) const {
        const auto place = static_cast<std::size_t>(number) - 1;
        if (place < facts.sizes.size()) return facts.sizes[place];
        throw Failure(fmt::format("{}: poppler does not say how large page {} is", shown, number));
    }

    double ResolutionOf(const PageSize& size, int number) const {
        const double squareInches = size.width * size.height / kInch / kInch;
        const double most = std::sqrt(kMostPixels / 2 / squareInches);
        if (most < kLeastDotsPerInch) {
            throw Failure(
                fmt::format("{}: page {} is {:.0f} mm by {:.0f} mm, too large to be looked at",
                            shown, number, size.width / kMillimetre, size.height / kMillimetre));
        }
        return std::min(kDotsPerInch, std::floor(most));
    }

    /** What a program says of a page; "" where it fails. */
    std::string Run(std::vector<std::string> words, int number,
                    std::initializer_list<std::string> files) const {
        const std::string page = std::to_string(number);
        words.insert(words.end(), {"-f", page, "-l", page});
        words.insert(words.end(), files);
        ProgramResult result = RunProgram(words, limits);
        return result.isDone ? std::move(result.output) : "";
    }

    std::optional<VectorPage> ShapesOf(const PageSize& size, int number) const {
        // The program draws the page's size in whole points into a square, in its middle.
        const double width = std::ceil(size.width);
        const double height = std::ceil(size.height);
        const double side = std::max({kDrawnSide, width, height});
        const std::string points = fmt::format("{:.0f}", side);
        const std::string svg =
            Run({"pdftocairo", "-svg", "-expand", "-paperw", points, "-paperh", points}, number,
                {name, "-"});
        if (svg.empty()) return std::nullopt;
        const double scale = std::round(side) / std::max(width, height);
        try {
            return ReadSvg(svg, {.unitsPerMillimetre = scale * kMillimetre,
                                 .left = (std::round(side) - scale * width) / 2,
                                 .top = (std::round(side) - scale * height) / 2});
        } catch (const Failure&) {
            // The picture alone has to do.
            return std::nullopt;
        }
    }

    std::string name;
    std::string shown;
    ProgramLimits limits{};
    PdfFacts facts;
};

}  // namespace

std::unique_ptr<Document> OpenPdf(const std::filesystem::path& path, const std::string& shown) {
    // An absolute name is taken for no option.
    return std::make_unique<PdfDocument>(host::Utf8FromPath(std::filesystem::absolute(path)),
                                         shown);
}

}  // namespace linewright
