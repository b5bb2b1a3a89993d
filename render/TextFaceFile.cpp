#include <fontconfig/fontconfig.h>

#include <memory>
#include <string>

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

}  // namespace

DrawingProblem MissingTextFace() {
    return {DrawingProblem::Reason::kNoTextFace, {kFamily}};
}

std::filesystem::path TextFaceFile(bool isBold) {
    const Pattern wanted(FcPatternBuild(nullptr, FC_FAMILY, FcTypeString, kFamily, FC_WEIGHT,
                                        FcTypeInteger, isBold ? FC_WEIGHT_BOLD : FC_WEIGHT_REGULAR,
                                        FC_SLANT, FcTypeInteger, FC_SLANT_ROMAN, nullptr),
                         FcPatternDestroy);
    if (!wanted || FcConfigSubstitute(nullptr, wanted.get(), FcMatchPattern) == FcFalse) {
        throw DrawingFailure(MissingTextFace());
    }
    FcDefaultSubstitute(wanted.get());
    FcResult result{};
    const Pattern found(FcFontMatch(nullptr, wanted.get(), &result), FcPatternDestroy);
    int weight = 0;
    const bool isIt = found && TextOf(found, FC_FAMILY) == kFamily &&
                      FcPatternGetInteger(found.get(), FC_WEIGHT, 0, &weight) == FcResultMatch &&
                      (weight >= FC_WEIGHT_BOLD) == isBold;
    if (!isIt) throw DrawingFailure(MissingTextFace());
    return TextOf(found, FC_FILE);
}

}  // namespace linewright
