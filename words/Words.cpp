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

constexpr Translations TranslationsOf(DrawingProblem::Reason reason) {
    using Reason = DrawingProblem::Reason;
    switch (reason) {
        case Reason::kNoFont:
            return {"{0}: there is no such font, or it cannot be read",
                    "{0}: diese Schrift gibt es nicht, oder sie ist nicht lesbar",
                    "{0} : cette police n’existe pas ou n’est pas lisible",
                    "{0}: フォントがないか、読み込めません"};
        case Reason::kNoAxes:
            return {"{0}: the font has not the axes that are asked for",
                    "{0}: der Schrift fehlen die verlangten Achsen",
                    "{0} : la police n’a pas les axes demandés",
                    "{0}: フォントに必要な軸がありません"};
        case Reason::kFixedHeight:
            return {"postal bars have the heights that their standard gives",
                    "Postbalken haben die Höhen ihrer Norm",
                    "les barres postales ont les hauteurs de leur norme",
                    "郵便用バーの高さは規格で決まっています"};
        case Reason::kHeight:
            return {"the bars can be {0} mm to {1} mm high at this X-dimension",
                    "die Balken können bei dieser Modulbreite {0} mm bis {1} mm hoch sein",
                    "à cette dimension X, les barres peuvent avoir de {0} mm à {1} mm de haut",
                    "この X 寸法でのバーの高さは {0} mm から {1} mm までです"};
        case Reason::kReduction:
            return {"bars can be 0 % to {0} % of the narrowest bar narrower",
                    "Balken können um 0 % bis {0} % des schmalsten schmaler sein",
                    "les barres peuvent être réduites de 0 % à {0} % de la plus étroite",
                    "バーは最も細いバーの 0 % から {0} % まで細くできます"};
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
                          Readable(outcome.typeName.substr(0, kShownOfName)),
                          fmt::join(texts, ", "));
        case RefusalReason::kPlugIn:
            return texts.empty() ? Filled(kEncoderFailed, language) : Readable(texts.front());
        case RefusalReason::kStrict: return Filled(kStrict, language);
    }
    return "";
}

std::string Sentence(const RequestFailure& failure, Language language) {
    return Filled(TranslationsOf(failure.reason), language, failure.parameter);
}

std::string Sentence(const DrawingFailure& failure, Language language) {
    const auto parameter = [&](std::size_t place) {
        const auto& parameters = failure.problem.parameters;
        return place < parameters.size() ? parameters[place] : std::string();
    };
    return Filled(TranslationsOf(failure.problem.reason), language, parameter(0), parameter(1));
}

}  // namespace linewright
