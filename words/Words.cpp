#include "words/Words.h"

#include "text/Readable.h"
#include "words/Translations.h"

namespace linewright {

namespace {

constexpr Translations TranslationsOf(FailureReason reason) {
    switch (reason) {
        case FailureReason::kHost: return {"{0}", "{0}", "{0}", "{0}"};
        case FailureReason::kNoService:
            return {"the plug-in offers no service: {0}",
                    "das Zusatzmodul bietet keinen Dienst: {0}",
                    "le module n’offre pas de service : {0}",
                    "プラグインがサービスを提供していません: {0}"};
        case FailureReason::kNoMemory:
            return {"the host has no memory for the data",
                    "das Programm hat keinen Speicher für die Daten",
                    "le programme n’a pas de mémoire pour les données",
                    "データのためのメモリがありません"};
    }
    return {};
}

constexpr Translations kUnknownType{"there is no type \"{0}\"; nearest: {1}",
                                    "es gibt keinen Typ „{0}“; am nächsten: {1}",
                                    "il n’y a pas de type « {0} » ; les plus proches : {1}",
                                    "種類「{0}」はありません。近いもの: {1}"};
constexpr Translations kEncoderFailed{"the encoder failed", "die Kodierung ist fehlgeschlagen",
                                      "le codage a échoué", "エンコードに失敗しました"};
constexpr Translations kStrict{"there is a warning, and warnings are refused",
                               "es gibt eine Warnung, und Warnungen werden abgelehnt",
                               "il y a un avertissement, et les avertissements sont refusés",
                               "警告があり、警告のあるものは拒否されます"};
constexpr std::size_t kShownOfName = 80;

std::string Joined(const std::vector<std::string>& texts) {
    std::string joined;
    for (const std::string& text : texts) {
        if (!joined.empty()) joined += ", ";
        joined += text;
    }
    return joined;
}

}  // namespace

Language LanguageOf(std::string_view locale) {
    if (locale == "deDE") return Language::kGerman;
    if (locale == "frFR") return Language::kFrench;
    if (locale == "jaJP") return Language::kJapanese;
    return Language::kEnglish;
}

std::string WhyRefused(const BarcodeOutcome& outcome, Language language) {
    if (!outcome.refusal) return "";
    const std::vector<std::string>& texts = outcome.refusal->texts;
    switch (outcome.refusal->reason) {
        case RefusalReason::kUnknownType:
            return Filled(kUnknownType, language,
                          Readable(outcome.typeName.substr(0, kShownOfName)), Joined(texts));
        case RefusalReason::kPlugIn:
            return texts.empty() ? Filled(kEncoderFailed, language) : Readable(texts.front());
        case RefusalReason::kStrict: return Filled(kStrict, language);
        case RefusalReason::kNumber: return Sentence(*outcome.refusal->number, language);
    }
    return "";
}

std::string Sentence(const RequestFailure& failure, Language language) {
    return Filled(TranslationsOf(failure.reason), language, failure.parameter);
}

}  // namespace linewright
