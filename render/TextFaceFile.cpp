#include <fontconfig/fontconfig.h>

#include <memory>
#include <string>
#include <string_view>

#include "render/TextFace.h"

namespace linewright {

namespace {

using Pattern = std::unique_ptr<FcPattern, decltype(&FcPatternDestroy)>;

/** What the pattern says under a name, at one of its places; "" where it says nothing. */
std::string TextOf(const Pattern& pattern, const char* name, int place = 0) {
    FcChar8* text = nullptr;
    if (FcPatternGetString(pattern.get(), name, place, &text) != FcResultMatch) return "";
    return reinterpret_cast<const char*>(text);
}

Pattern FaceOf(const TextFaceName& name) {
    return {FcPatternBuild(nullptr, FC_FAMILY, FcTypeString, name.family.c_str(), FC_WEIGHT,
                           FcTypeInteger, name.isBold ? FC_WEIGHT_BOLD : FC_WEIGHT_REGULAR,
                           FC_SLANT, FcTypeInteger, FC_SLANT_ROMAN, nullptr),
            FcPatternDestroy};
}

/** A font may have several names. */
bool HasFamily(const Pattern& pattern, const std::string& family) {
    for (int place = 0;; ++place) {
        const std::string name = TextOf(pattern, FC_FAMILY, place);
        if (name.empty() || name == family) return !name.empty();
    }
}

/** The installed face that is nearest; none without memory or fonts. */
Pattern Match(const Pattern& wanted) {
    if (!wanted || FcConfigSubstitute(nullptr, wanted.get(), FcMatchPattern) == FcFalse) {
        return {nullptr, FcPatternDestroy};
    }
    FcDefaultSubstitute(wanted.get());
    FcResult result{};
    return {FcFontMatch(nullptr, wanted.get(), &result), FcPatternDestroy};
}

}  // namespace

DrawingProblem MissingTextFace(const TextFaceName& name) {
    return {DrawingProblem::Reason::kNoTextFace, {name.family}};
}

InstalledFace FindTextFace(const TextFaceName& name) {
    const Pattern found = Match(FaceOf(name));
    int weight = 0;
    int place = 0;
    const bool isIt = found && HasFamily(found, name.family) &&
                      FcPatternGetInteger(found.get(), FC_WEIGHT, 0, &weight) == FcResultMatch &&
                      (weight >= FC_WEIGHT_BOLD) == name.isBold &&
                      FcPatternGetInteger(found.get(), FC_INDEX, 0, &place) == FcResultMatch &&
                      place == 0;
    if (!isIt) throw DrawingFailure(MissingTextFace(name));
    return {TextOf(found, FC_FILE), TextOf(found, FC_STYLE), TextOf(found, FC_POSTSCRIPT_NAME)};
}

std::optional<std::filesystem::path> OtherTextFaceFile(const TextFaceName& name,
                                                       char32_t character) {
    const std::unique_ptr<FcCharSet, decltype(&FcCharSetDestroy)> characters(FcCharSetCreate(),
                                                                             FcCharSetDestroy);
    const Pattern wanted = FaceOf(name);
    const bool isAsked =
        characters && wanted && FcCharSetAddChar(characters.get(), character) == FcTrue &&
        FcPatternAddCharSet(wanted.get(), FC_CHARSET, characters.get()) == FcTrue &&
        FcPatternAddString(wanted.get(), FC_FONTFORMAT,
                           reinterpret_cast<const FcChar8*>("TrueType")) == FcTrue;
    if (!isAsked) return std::nullopt;
    const Pattern found = Match(wanted);
    if (!found || TextOf(found, FC_FONTFORMAT) != "TrueType") return std::nullopt;
    return TextOf(found, FC_FILE);
}

}  // namespace linewright
