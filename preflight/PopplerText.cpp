#include "preflight/PopplerText.h"

#include <charconv>
#include <cmath>
#include <map>
#include <pugixml.hpp>
#include <string>

#include "preflight/SvgPath.h"

namespace linewright {

namespace {

std::string_view TakeLine(std::string_view& text) {
    const std::string_view line = text.substr(0, text.find('\n'));
    text.remove_prefix(std::min(text.size(), line.size() + 1));
    return line;
}

/** "Page    3 size:  595.276 x 841.89 pts (A4)". */
std::optional<PageSize> SizeIn(std::string_view line) {
    const std::size_t begin = line.find(" size:");
    if (!line.starts_with("Page ") || begin == line.npos) return std::nullopt;
    line.remove_prefix(begin + 6);
    const auto width = TakeNumber(line);
    const std::size_t x = line.find('x');
    if (!width || x == line.npos) return std::nullopt;
    line.remove_prefix(x + 1);
    const auto height = TakeNumber(line);
    if (!height || !(*width > 0) || !(*height > 0)) return std::nullopt;
    return PageSize{*width, *height};
}

/** "Page    3 rot:   90". */
bool IsTurned(std::string_view line) {
    const std::size_t begin = line.find(" rot:");
    if (!line.starts_with("Page ") || begin == line.npos) return false;
    line.remove_prefix(begin + 5);
    return std::fmod(std::fabs(TakeNumber(line).value_or(0)), 180) == 90;
}

std::string FontName(std::string_view family) {
    constexpr std::size_t kMark = 6;
    if (family.size() > kMark && family[kMark] == '+') family.remove_prefix(kMark + 1);
    return std::string(family);
}

std::optional<int> TakeInteger(std::string_view& text) {
    while (!text.empty() && (text.front() == ' ' || text.front() == '\n')) text.remove_prefix(1);
    int number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc()) return std::nullopt;
    text.remove_prefix(static_cast<std::size_t>(end - text.data()));
    return number;
}

}  // namespace

std::optional<PdfFacts> ReadPdfInfo(std::string_view text) {
    PdfFacts facts;
    while (!text.empty()) {
        std::string_view line = TakeLine(text);
        if (const auto size = SizeIn(line)) {
            facts.sizes.push_back(*size);
        } else if (IsTurned(line) && !facts.sizes.empty()) {
            std::swap(facts.sizes.back().width, facts.sizes.back().height);
        } else if (line.starts_with("Pages:")) {
            line.remove_prefix(6);
            facts.pages = TakeInteger(line).value_or(0);
        }
    }
    if (facts.pages < 0) return std::nullopt;
    return facts;
}

std::vector<PlacedText> ReadPlacedTexts(std::string_view xml, double width) {
    pugi::xml_document document;
    if (!document.load_buffer(xml.data(), xml.size())) return {};
    const pugi::xml_node page = document.child("pdf2xml").child("page");
    const double units = page.attribute("width").as_double();
    if (!(units > 0) || !std::isfinite(units)) return {};
    const double scale = width / units;
    std::map<std::string, std::string> fonts;
    std::vector<PlacedText> texts;
    for (const pugi::xml_node& node : page.children()) {
        if (std::string_view(node.name()) == "fontspec") {
            fonts[node.attribute("id").value()] = FontName(node.attribute("family").value());
        }
        if (std::string_view(node.name()) != "text") continue;
        const double left = node.attribute("left").as_double() * scale;
        const double top = node.attribute("top").as_double() * scale;
        const Area area{left, top, left + node.attribute("width").as_double() * scale,
                        top + node.attribute("height").as_double() * scale};
        if (!area.IsEmpty()) texts.push_back({area, fonts[node.attribute("font").value()]});
    }
    return texts;
}

bool ReadPpm(std::string_view ppm, GreyRaster& grey, GreyRaster& red) {
    if (!ppm.starts_with("P6")) return false;
    ppm.remove_prefix(2);
    const auto width = TakeInteger(ppm);
    const auto height = TakeInteger(ppm);
    const auto largest = TakeInteger(ppm);
    if (!width || !height || largest != 255 || *width < 1 || *height < 1 || ppm.empty()) {
        return false;
    }
    ppm.remove_prefix(1);
    const std::size_t count = static_cast<std::size_t>(*width) * static_cast<std::size_t>(*height);
    if (ppm.size() != 3 * count) return false;
    grey.width = red.width = *width;
    grey.height = red.height = *height;
    grey.pixels.resize(count);
    red.pixels.resize(count);
    const auto* pixel = reinterpret_cast<const unsigned char*>(ppm.data());
    for (std::size_t place = 0; place < count; ++place, pixel += 3) {
        grey.pixels[place] =
            static_cast<std::uint8_t>((77 * pixel[0] + 151 * pixel[1] + 28 * pixel[2]) >> 8);
        red.pixels[place] = pixel[0];
    }
    return true;
}

}  // namespace linewright
