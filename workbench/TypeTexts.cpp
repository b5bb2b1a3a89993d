#include "workbench/TypeTexts.h"

#include <QStringList>

#include "types/BarcodeTypes.h"
#include "types/DescriptionKeys.h"
#include "workbench/Text.h"

namespace linewright {

namespace {

QString TextOfKey(const char* key) {
    return key == nullptr ? QString() : TextFromHost(PMString(key));
}

DescriptionKeys KeysOf(const TypeTexts& texts) {
    return DescriptionKeysOf(static_cast<std::uint16_t>(texts.type->code));
}

/** The lines that are about a type, of those that it shares with another one: a line that begins
 *  with a name is about that one alone. "EAN-13" begins the name of "EAN-13 (Classic)". */
QString LinesAbout(const TypeTexts& texts, const QString& otherName) {
    const auto length = [](const QString& line, const QString& name) {
        return !name.isEmpty() && line.startsWith(name) ? name.size() : 0;
    };
    QStringList about;
    for (const QString& line : TextOfKey(KeysOf(texts).data).split('\n')) {
        if (length(line, texts.name) >= length(line, otherName)) about << line;
    }
    return about.join(' ');
}

}  // namespace

std::vector<TypeTexts> TextsOfTypes(Service& service) {
    std::vector<TypeTexts> all;
    for (const TypeDescription& described : service.Types()) {
        TypeTexts texts{.type = FindTypeByPrefix(described.typeName),
                        .name = QString::fromStdString(described.displayText),
                        .usage = {},
                        .takes = {},
                        .sample = {}};
        if (texts.type == nullptr) continue;
        texts.usage = TextOfKey(KeysOf(texts).usage).replace('\n', ' ');
        texts.sample = TextOfKey(KeysOf(texts).sample);
        all.push_back(std::move(texts));
    }
    for (TypeTexts& texts : all) {
        const auto other = std::find_if(all.begin(), all.end(), [&](const TypeTexts& candidate) {
            return candidate.type != texts.type && KeysOf(candidate).data == KeysOf(texts).data &&
                   KeysOf(candidate).notes == KeysOf(texts).notes;
        });
        texts.takes = LinesAbout(texts, other == all.end() ? QString() : other->name);
    }
    return all;
}

}  // namespace linewright
