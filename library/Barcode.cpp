#include "library/Barcode.h"

#include <type_traits>

#include "library/Sized.h"
#include "requests/PrintedText.h"
#include "requests/RefusedCharacter.h"
#include "text/FontText.h"

namespace linewright {

namespace {

constexpr std::int64_t kNowhere = -1;
constexpr std::uint32_t kMostCheck = 255;
/** All flags up to the last one. */
constexpr std::uint32_t kKnownFlags = 2 * LINEWRIGHT_GREY - 1;

}  // namespace

Barcode::Barcode(Service& service, const BarcodeOutcome& outcome, const BarcodeWish& wish,
                 Language language) {
    fields.reason = ReasonOf(outcome);
    fields.status = outcome.status.value_or(0);
    fields.type = Keep(outcome.typeName);
    fields.bytes = Keep(outcome.bytes.empty() ? outcome.marker : outcome.bytes);
    fields.hint = Keep(outcome.hint);
    fields.message = Keep(WhyRefused(outcome, language));
    fields.position = kNowhere;
    const std::optional<std::size_t> position = RefusedCharacter(service, wish, outcome);
    if (position) fields.position = static_cast<std::int64_t>(*position);
    if (outcome.type != nullptr && outcome.type->face != nullptr) {
        fields.font = Keep(std::string(outcome.type->face->family));
        fields.font_size = outcome.type->Module() * outcome.type->face->modulesPerEm;
    }
    if (outcome.IsMade()) {
        fields.text = Keep(FontText(outcome.bytes));
        fields.human_readable = Keep(PrintedText(outcome, wish));
    }
    for (const Warning& warning : outcome.Warnings()) AddWarning(Sentence(warning, language));
}

linewright_text Barcode::Keep(std::string text) {
    texts.push_back(std::make_unique<const std::string>(std::move(text)));
    return TextOf(*texts.back());
}

void Barcode::AddWarning(std::string sentence) {
    warnings.push_back(Keep(std::move(sentence)));
    fields.warnings = warnings.data();
    fields.warning_count = warnings.size();
    if (fields.reason == LINEWRIGHT_MADE) fields.reason = LINEWRIGHT_WARNED;
}

const linewright_barcode* Barcode::HandOut(std::unique_ptr<Barcode> barcode) {
    static_assert(std::is_standard_layout_v<Barcode>);
    return &barcode.release()->fields;
}

void Barcode::TakeBack(const linewright_barcode* barcode) {
    delete reinterpret_cast<const Barcode*>(barcode);
}

uint32_t ReasonOf(const BarcodeOutcome& outcome) {
    if (outcome.IsMade()) return outcome.Warnings().empty() ? LINEWRIGHT_MADE : LINEWRIGHT_WARNED;
    switch (outcome.refusal->reason) {
        case RefusalReason::kUnknownType: return LINEWRIGHT_UNKNOWN_TYPE;
        case RefusalReason::kPlugIn:
        case RefusalReason::kNumber: return LINEWRIGHT_BAD_DATA;
        case RefusalReason::kStrict: break;
    }
    return LINEWRIGHT_NOT_STRICT;
}

linewright_options CheckedOptions(const linewright_options* options) {
    constexpr linewright_options kUsual = LINEWRIGHT_OPTIONS_INIT;
    const linewright_options checked = Sized(options, kUsual);
    if ((checked.flags & ~kKnownFlags) != 0) {
        throw CallFailure{LINEWRIGHT_BAD_ARGUMENT,
                          "a flag is none that this release of the library knows"};
    }
    if (checked.check > kMostCheck) {
        throw CallFailure{LINEWRIGHT_BAD_ARGUMENT, "check is not a number from 0 to 255"};
    }
    return checked;
}

BarcodeWish WishOf(linewright_text type, linewright_text data, const linewright_options& options) {
    return {.type = StringOf(type),
            .data = StringOf(data),
            .isUtf8 = (options.flags & LINEWRIGHT_BYTES) == 0,
            .checkCharacter = static_cast<uint8>(options.check),
            .ratio = options.ratio,
            .isStrict = (options.flags & LINEWRIGHT_STRICT) != 0};
}

}  // namespace linewright
