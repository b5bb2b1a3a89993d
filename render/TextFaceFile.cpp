#include <fontconfig/fontconfig.h>

#include <memory>
#include <string>
#include <string_view>

#include "render/TextFace.h"

namespace linewright {

namespace {

constexpr const char* kFamily = "DejaVu Sans Mono";

using Pattern = std::unique_ptr<FcPattern, decltype(&FcPatternDestroy)>;

/** What the pattern says under a name; fails where it says nothing. */
std::string TextOf(const Pattern& pattern, const char* name) {
    FcChar8* text = nullptr;
    if (FcPatternGetString(pattern.get(), name, 0, &text) != FcResultMatch) {
        throw DrawingFailure(MissingTextFace());
    }
    return reinterpret_cast<const char*>(text);
}

Pattern FaceOf(bool isBold) {
    return {FcPatternBuild(nullptr, FC_FAMILY, FcTypeString, kFamily, FC_WEIGHT, FcTypeInteger,
                           isBold ? FC_WEIGHT_BOLD : FC_WEIGHT_REGULAR, FC_SLANT, FcTypeInteger,
                           FC_SLANT_ROMAN, nullptr),
            FcPatternDestroy};
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

DrawingProblem MissingTextFace() {
    return {DrawingProblem::Reason::kNoTextFace, {kFamily}};
}

std::filesystem::path TextFaceFile(bool isBold) {
    const Pattern found = Match(FaceOf(isBold));
    int weight = 0;
    const bool isIt = found && TextOf(found, FC_FAMILY) == kFamily &&
                      FcPatternGetInteger(found.get(), FC_WEIGHT, 0, &weight) == FcResultMatch &&
                      (weight >= FC_WEIGHT_BOLD) == isBold;
    if (!isIt) throw DrawingFailure(MissingTextFace());
    return TextOf(found, FC_FILE);
}

std::optional<std::filesystem::path> OtherTextFaceFile(bool isBold, char32_t character) {
    const std::unique_ptr<FcCharSet, decltype(&FcCharSetDestroy)> characters(FcCharSetCreate(),
                                                                             FcCharSetDestroy);
    const Pattern wanted = FaceOf(isBold);
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
