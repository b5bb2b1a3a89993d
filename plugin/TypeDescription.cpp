#include "plugin/TypeDescription.h"

#include "types/DescriptionKeys.h"

namespace linewright {

namespace {

void AppendPart(PMString& description, const char* labelKey, const char* textKey) {
    description.Append(PMString(labelKey));
    if (textKey) description.Append(PMString(textKey));
}

}  // namespace

PMString DescribeType(uint16 code) {
    PMString description;
    if (code >= 17 && code <= 19) return description;
    const DescriptionKeys texts = DescriptionKeysOf(code);
    AppendPart(description, kDescriptionLabels.usage, texts.usage);
    AppendPart(description, kDescriptionLabels.data, texts.data);
    AppendPart(description, kDescriptionLabels.sample, texts.sample);
    AppendPart(description, kDescriptionLabels.notes, texts.notes);
    return description;
}

}  // namespace linewright
