#include "presets/Preset.h"

#include <fmt/format.h>
#include <toml++/toml.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cmath>
#include <fstream>
#include <optional>
#include <sstream>
#include <system_error>
#include <vector>

#include "files/NewFile.h"
#include "host/runtime/Paths.h"
#include "requests/WrittenLength.h"
#include "text/Nearest.h"
#include "text/Utf8.h"
#include "types/Dimensions.h"

namespace linewright {

namespace {

using Reason = PresetProblem::Reason;

constexpr double kLeastMagnification = 1;
constexpr double kLargestMagnification = 1000;
constexpr double kLargestResolution = 100000;

std::optional<Length> LengthIn(const toml::node& value, bool isZeroAllowed) {
    const auto text = value.value<std::string_view>();
    return text ? FindLength(*text, isZeroAllowed) : std::nullopt;
}

std::optional<double> NumberIn(const toml::node& value, double least, double largest) {
    const auto number = value.value<double>();
    const bool isOne = number && *number >= least && *number <= largest;
    return isOne ? number : std::nullopt;
}

bool TakeSwitch(const toml::node& value, bool& target) {
    const auto state = value.value_exact<bool>();
    target = state.value_or(false);
    return state.has_value();
}

template <class Target, class Found>
bool Take(Target& target, const Found& found) {
    if (found) target = *found;
    return found.has_value();
}

/** A key, what is wrong with a value that it cannot take, and how it takes one. */
struct Key {
    std::string_view name;
    Reason reason;
    bool (*take)(const toml::node& value, DrawingWish& wish);
};

constexpr std::array kKeys{
    Key{"x-dimension", Reason::kNoXDimension,
        [](const toml::node& value, DrawingWish& wish) {
            const auto length = LengthIn(value, false);
            if (!length || length->isInX) return false;
            wish.xDimension = length->number;
            return true;
        }},
    Key{"magnification", Reason::kNoMagnification,
        [](const toml::node& value, DrawingWish& wish) {
            return Take(wish.magnification,
                        NumberIn(value, kLeastMagnification, kLargestMagnification));
        }},
    Key{"height", Reason::kNoLength,
        [](const toml::node& value, DrawingWish& wish) {
            return Take(wish.height, LengthIn(value, false));
        }},
    Key{"quiet-zone", Reason::kNoLength,
        [](const toml::node& value, DrawingWish& wish) {
            return Take(wish.quietZone, LengthIn(value, true));
        }},
    Key{"bar-width-reduction", Reason::kNoReduction,
        [](const toml::node& value, DrawingWish& wish) {
            const auto text = value.value<std::string_view>();
            return text && Take(wish.barWidthReduction, FindReduction(*text));
        }},
    Key{"dpi", Reason::kNoResolution,
        [](const toml::node& value, DrawingWish& wish) {
            return Take(wish.dotsPerInch, NumberIn(value, 1, kLargestResolution));
        }},
    Key{"fit", Reason::kNoSwitch,
        [](const toml::node& value, DrawingWish& wish) {
            return TakeSwitch(value, wish.isFitted);
        }},
    Key{"text", Reason::kNoSwitch,
        [](const toml::node& value, DrawingWish& wish) {
            return TakeSwitch(value, wish.isTextWanted.emplace());
        }},
    Key{"bearer", Reason::kNoSwitch,
        [](const toml::node& value, DrawingWish& wish) {
            return TakeSwitch(value, wish.hasBearerBars);
        }},
    Key{"margin-marks", Reason::kNoSwitch,
        [](const toml::node& value, DrawingWish& wish) {
            return TakeSwitch(value, wish.hasMarginMarks);
        }},
};

std::string NearestKey(std::string_view written) {
    std::vector<std::string_view> names;
    names.reserve(kKeys.size());
    for (const Key& key : kKeys) names.push_back(key.name);
    return std::string(Nearest(written, names, 1).front());
}

std::string WrittenValue(const toml::node& value) {
    std::ostringstream written;
    value.visit([&written](const auto& node) { written << node; });
    return written.str();
}

/** Characters above 127 as escapes: toml++ 3.3 has no defined behaviour for one that begins a
 *  continued line of a text. What is not UTF-8 stays, for the parser to refuse. */
std::string Escaped(std::string_view utf8) {
    if (FirstInvalidUtf8(utf8)) return std::string(utf8);
    std::string escaped;
    for (const char32_t character : CharactersFromUtf8(utf8)) {
        if (character < 0x80) {
            escaped += static_cast<char>(character);
        } else {
            escaped += fmt::format("\\U{:08X}", static_cast<std::uint32_t>(character));
        }
    }
    return escaped;
}

std::string Number(double number) {
    constexpr double kDigits = 1e6;
    return fmt::format("{}", std::round(number * kDigits) / kDigits);
}

std::string Written(const Length& length) {
    return length.isInX ? Number(length.number) + 'x' : Number(length.number / kMillimetre) + "mm";
}

}  // namespace

DrawingWish ReadPreset(const std::string& file) {
    std::ifstream stream(host::PathFromUtf8(file), std::ios::binary);
    std::string content(kLongestPreset + 1, '\0');
    if (stream) stream.read(content.data(), static_cast<std::streamsize>(content.size()));
    if (!stream.eof() && stream.fail()) {
        throw PresetFailure({.reason = Reason::kUnreadable,
                             .file = file,
                             .detail = std::generic_category().message(errno)});
    }
    if (stream.bad()) throw PresetFailure({.reason = Reason::kUnreadable, .file = file});
    content.resize(static_cast<std::size_t>(stream.gcount()));
    return PresetOf(content, file);
}

DrawingWish PresetOf(std::string_view content, const std::string& file) {
    if (content.size() > kLongestPreset) {
        throw PresetFailure({.reason = Reason::kTooLong, .file = file});
    }
    DrawingWish wish;
    toml::table table;
    try {
        table = toml::parse(Escaped(content));
    } catch (const toml::parse_error& error) {
        throw PresetFailure({.reason = Reason::kSyntax,
                             .file = file,
                             .line = error.source().begin.line,
                             .detail = std::string(error.description())});
    }
    for (const auto& [written, value] : table) {
        const std::string name(written.str());
        const std::uint32_t line = written.source().begin.line;
        const auto key = std::find_if(kKeys.begin(), kKeys.end(),
                                      [&name](const Key& known) { return known.name == name; });
        if (key == kKeys.end()) {
            throw PresetFailure({.reason = Reason::kUnknownKey,
                                 .file = file,
                                 .line = line,
                                 .key = name,
                                 .detail = NearestKey(name)});
        }
        if (!key->take(value, wish)) {
            throw PresetFailure({.reason = key->reason,
                                 .file = file,
                                 .line = line,
                                 .key = name,
                                 .value = WrittenValue(value)});
        }
    }
    if (wish.xDimension && wish.magnification) {
        throw PresetFailure({.reason = Reason::kTwoSizes, .file = file});
    }
    return wish;
}

std::string PresetText(const DrawingWish& wish) {
    std::string text;
    const auto add = [&text](std::string_view key, const std::string& value) {
        text += fmt::format("{} = {}\n", key, value);
    };
    const auto addLength = [&add](std::string_view key, const std::optional<Length>& length) {
        if (length) add(key, '"' + Written(*length) + '"');
    };
    const auto addSwitch = [&add](std::string_view key, bool isOn) {
        if (isOn) add(key, "true");
    };
    if (wish.xDimension) addLength("x-dimension", Length{*wish.xDimension});
    if (wish.magnification) add("magnification", Number(*wish.magnification));
    addLength("height", wish.height);
    addLength("quiet-zone", wish.quietZone);
    if (wish.barWidthReduction && wish.barWidthReduction->isInX) {
        add("bar-width-reduction", '"' + Number(100 * wish.barWidthReduction->number) + "%\"");
    } else {
        addLength("bar-width-reduction", wish.barWidthReduction);
    }
    if (wish.dotsPerInch) add("dpi", Number(*wish.dotsPerInch));
    addSwitch("fit", wish.isFitted);
    if (wish.isTextWanted) add("text", *wish.isTextWanted ? "true" : "false");
    addSwitch("bearer", wish.hasBearerBars);
    addSwitch("margin-marks", wish.hasMarginMarks);
    return text;
}

void WritePreset(const std::string& file, const DrawingWish& wish) {
    files::NewFile output(host::PathFromUtf8(file), {.writesDevices = false});
    if (output.Write(PresetText(wish)) && output.Keep()) return;
    throw PresetFailure({.reason = Reason::kUnwritable, .file = file, .detail = output.Error()});
}

DrawingWish Combined(const DrawingWish& preset, const DrawingWish& wish) {
    DrawingWish combined = preset;
    const auto take = [](auto& target, const auto& wished) {
        if (wished) target = wished;
    };
    if (wish.xDimension || wish.magnification) {
        combined.xDimension = wish.xDimension;
        combined.magnification = wish.magnification;
    }
    take(combined.height, wish.height);
    take(combined.quietZone, wish.quietZone);
    take(combined.barWidthReduction, wish.barWidthReduction);
    take(combined.isTextWanted, wish.isTextWanted);
    take(combined.dotsPerInch, wish.dotsPerInch);
    combined.isFitted = combined.isFitted || wish.isFitted;
    combined.hasBearerBars = combined.hasBearerBars || wish.hasBearerBars;
    combined.hasMarginMarks = combined.hasMarginMarks || wish.hasMarginMarks;
    return combined;
}

}  // namespace linewright
