#include "text/Readable.h"
#include "words/Translations.h"

namespace linewright {

namespace {

/** {0} is the key, {1} the value, {2} the detail. */
constexpr Translations TranslationsOf(PresetProblem::Reason reason) {
    using Reason = PresetProblem::Reason;
    switch (reason) {
        case Reason::kUnreadable:
            return {"the preset cannot be read: {2}", "die Vorgabe ist nicht lesbar: {2}",
                    "le préréglage n’est pas lisible : {2}", "プリセットを読み込めません: {2}"};
        case Reason::kTooLong:
            return {"the file is too long for a preset", "die Datei ist zu lang für eine Vorgabe",
                    "le fichier est trop long pour un préréglage",
                    "プリセットとしてはファイルが長すぎます"};
        case Reason::kSyntax:
            return {"this is no TOML: {2}", "das ist kein TOML: {2}", "ce n’est pas du TOML : {2}",
                    "TOML ではありません: {2}"};
        case Reason::kUnknownKey:
            return {"a preset has no key \"{0}\"; nearest: {2}",
                    "eine Vorgabe hat keinen Schlüssel „{0}“; am nächsten: {2}",
                    "un préréglage n’a pas de clé « {0} » ; la plus proche : {2}",
                    "プリセットにキー「{0}」はありません。近いもの: {2}"};
        case Reason::kNoXDimension:
            return {"{0} = {1} is no length such as \"0.33mm\", \"10mil\" or \"0.7pt\"",
                    "{0} = {1} ist keine Länge wie \"0.33mm\", \"10mil\" oder \"0.7pt\"",
                    "{0} = {1} n’est pas une longueur comme \"0.33mm\", \"10mil\" ou \"0.7pt\"",
                    "{0} = {1} は \"0.33mm\"、\"10mil\"、\"0.7pt\" のような長さではありません"};
        case Reason::kNoLength:
            return {"{0} = {1} is no length such as \"15mm\", \"0.5in\" or \"10x\"",
                    "{0} = {1} ist keine Länge wie \"15mm\", \"0.5in\" oder \"10x\"",
                    "{0} = {1} n’est pas une longueur comme \"15mm\", \"0.5in\" ou \"10x\"",
                    "{0} = {1} は \"15mm\"、\"0.5in\"、\"10x\" のような長さではありません"};
        case Reason::kNoReduction:
            return {"{0} = {1} is no length or share of the narrowest bar, such as \"10%\"",
                    "{0} = {1} ist keine Länge und kein Teil des schmalsten Balkens wie \"10%\"",
                    "{0} = {1} n’est ni une longueur ni une part de la barre la plus étroite, "
                    "comme \"10%\"",
                    "{0} = {1} は長さでも \"10%\" のような割合でもありません"};
        case Reason::kNoMagnification:
            return {"{0} = {1} is no number of per cent from 1 to 1000",
                    "{0} = {1} ist keine Prozentzahl von 1 bis 1000",
                    "{0} = {1} n’est pas un pourcentage de 1 à 1000",
                    "{0} = {1} は 1 から 1000 までのパーセントではありません"};
        case Reason::kNoResolution:
            return {"{0} = {1} is no number of dots per inch from 1 to 100000",
                    "{0} = {1} ist keine Zahl von Punkten je Zoll von 1 bis 100000",
                    "{0} = {1} n’est pas un nombre de points par pouce de 1 à 100000",
                    "{0} = {1} は 1 から 100000 までの dpi ではありません"};
        case Reason::kNoSwitch:
            return {"{0} = {1} is neither true nor false", "{0} = {1} ist weder true noch false",
                    "{0} = {1} n’est ni true ni false",
                    "{0} = {1} は true でも false でもありません"};
        case Reason::kTwoSizes:
            return {
                "x-dimension and magnification say the same: give one of them",
                "x-dimension und magnification sagen dasselbe: eines davon genügt",
                "x-dimension et magnification disent la même chose : donnez l’une des deux",
                "x-dimension と magnification は同じことを表します。一方だけを指定してください"};
        case Reason::kName:
            return {"\"{0}\" cannot be the name of a preset",
                    "„{0}“ kann nicht der Name einer Vorgabe sein",
                    "« {0} » ne peut pas être le nom d’un préréglage",
                    "「{0}」はプリセットの名前にできません"};
        case Reason::kUnwritable:
            return {"the preset cannot be stored: {2}",
                    "die Vorgabe kann nicht gespeichert werden: {2}",
                    "le préréglage ne peut pas être enregistré : {2}",
                    "プリセットを保存できません: {2}"};
    }
    return {};
}

}  // namespace

std::string Sentence(const PresetFailure& failure, Language language) {
    constexpr Translations kInLine{
        "{0}: line {1}: ", "{0}: Zeile {1}: ", "{0} : ligne {1} : ", "{0}: {1} 行目: "};
    constexpr Translations kInFile{"{0}: ", "{0}: ", "{0} : ", "{0}: "};
    const PresetProblem& problem = failure.problem;
    std::string place;
    if (!problem.file.empty()) {
        const Translations& form = problem.line > 0 ? kInLine : kInFile;
        place = Filled(form, language, Readable(problem.file), problem.line);
    }
    return place + Filled(TranslationsOf(problem.reason), language, Readable(problem.key),
                          Readable(problem.value), Readable(problem.detail));
}

}  // namespace linewright
