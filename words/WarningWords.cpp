#include <string>

#include "text/Readable.h"
#include "words/Translations.h"

namespace linewright {

namespace {

constexpr Translations TranslationsOf(WarningReason reason) {
    switch (reason) {
        case WarningReason::kNotUtf8:
            return {"byte {0} of the data is not valid UTF-8",
                    "Byte {0} der Daten ist kein gültiges UTF-8",
                    "l’octet {0} des données n’est pas de l’UTF-8 valide",
                    "データの {0} バイト目は正しい UTF-8 ではありません"};
        case WarningReason::kAboveLatin1:
            return {"{0} characters above U+00FF dropped: {1}",
                    "{0} Zeichen über U+00FF weggelassen: {1}",
                    "caractères au-delà de U+00FF omis, au nombre de {0} : {1}",
                    "U+00FF を超える {0} 文字が省かれました: {1}"};
        case WarningReason::kEmptyData:
            return {"the data is empty", "die Daten sind leer", "les données sont vides",
                    "データが空です"};
        case WarningReason::kNoCode128Character:
            return {"byte 0x{0} does not print as {1}: Code 128 has no character for it",
                    "Byte 0x{0} wird nicht als {1} gedruckt: Code 128 hat kein Zeichen dafür",
                    "l’octet 0x{0} ne s’imprime pas comme {1} : le Code 128 n’a pas ce caractère",
                    "バイト 0x{0} は {1} として印刷されません。Code 128 にその文字はありません"};
        case WarningReason::kDroppedByEncoder:
            return {"{0} characters dropped by the encoder: {1}",
                    "{0} Zeichen beim Kodieren weggelassen: {1}",
                    "caractères omis par le codage, au nombre de {0} : {1}",
                    "エンコード時に {0} 文字が省かれました: {1}"};
        case WarningReason::kCheckDigitReplaced:
            return {"the check digit {0} was replaced by the computed one, {1}",
                    "die Prüfziffer {0} wurde durch die berechnete ersetzt, {1}",
                    "la clé de contrôle {0} a été remplacée par la clé calculée, {1}",
                    "チェックデジット {0} は計算値 {1} に置き換えられました"};
        case WarningReason::kAddOnCut:
            return {
                "the add-on of the symbol is {0}, not {1}: data with both check digit and add-on "
                "loses its last digit",
                "die letzte Ziffer des Zusatzes fiel weg: die Balken sagen {0}, nicht {1}",
                "le dernier chiffre du complément est omis : les barres disent {0}, non {1}",
                "アドオンの最後の数字が省かれました。バーは {1} ではなく {0} を表します"};
        case WarningReason::kCode128SumOverflow:
            return {
                "the data is too long for the check character, whose sum is kept in 16 bits: "
                "scanners refuse the symbol",
                "die Daten sind zu lang für das Prüfzeichen, dessen Summe 16 Bit hat: Scanner "
                "weisen das Symbol zurück",
                "les données sont trop longues pour le caractère de contrôle, dont la somme "
                "tient en 16 bits : les lecteurs refusent le symbole",
                "データが長すぎ、16 ビットの合計からなるチェックキャラクタが誤りになります。"
                "スキャナは読み取りません"};
        case WarningReason::kNoCode128Start:
            return {
                "the encoder has no start character for data that begins so: no scanner finds "
                "the symbol",
                "für Daten, die so beginnen, gibt es kein Startzeichen: kein Scanner findet das "
                "Symbol",
                "il n’y a pas de caractère de début pour des données qui commencent ainsi : "
                "aucun lecteur ne trouve le symbole",
                "このように始まるデータにはスタートキャラクタがありません。"
                "スキャナは読み取れません"};
        case WarningReason::kFunctionOfSetB:
            return {
                "byte 195 or 200 stands behind a control character, where it means something "
                "else: scanners read on in the wrong set",
                "Byte 195 oder 200 steht hinter einem Steuerzeichen, wo es etwas anderes "
                "bedeutet: Scanner lesen im falschen Satz weiter",
                "l’octet 195 ou 200 suit un caractère de commande, où il a un autre sens : les "
                "lecteurs continuent dans le mauvais jeu",
                "バイト 195 または 200 が制御文字の後にあり、別の意味になります。"
                "スキャナは誤ったセットで読み続けます"};
        case WarningReason::kNoUpcEForm:
            return {
                "the number has no UPC-E form: it is printed in full with UPC-E's right guard, "
                "which no scanner knows",
                "die Nummer hat keine UPC-E-Form: sie wird ganz gedruckt, mit dem rechten "
                "Randzeichen von UPC-E, das kein Scanner kennt",
                "le numéro n’a pas de forme UPC-E : il est imprimé en entier avec la garde "
                "droite de l’UPC-E, qu’aucun lecteur ne connaît",
                "この番号に UPC-E の形はありません。UPC-E の右ガードバーで全桁が印刷され、"
                "スキャナは読み取れません"};
        case WarningReason::kNoUpcENumberSystem:
            return {
                "UPC-E has no number system {0}: the bars say number system 0 with the check "
                "digit of another number",
                "UPC-E hat kein Zahlensystem {0}: die Balken sagen Zahlensystem 0 mit der "
                "Prüfziffer einer anderen Nummer",
                "l’UPC-E n’a pas de système {0} : les barres disent le système 0 avec la clé "
                "d’un autre numéro",
                "UPC-E に番号体系 {0} はありません。"
                "バーは番号体系 0 と別の番号のチェックデジットを表します"};
        case WarningReason::kOtherUpcEDigits:
            return {
                "classic UPC-E prints the digits {0}, which do not stand for this number",
                "das klassische UPC-E druckt die Ziffern {0}, die nicht für diese Nummer stehen",
                "l’UPC-E classique imprime les chiffres {0}, qui ne désignent pas ce numéro",
                "旧 UPC-E は数字 {0} を印刷し、この番号を表しません"};
        case WarningReason::kNoBars:
            return {"this type gives digits for people to read, without bars",
                    "dieser Typ ergibt Ziffern zum Lesen, ohne Balken",
                    "ce type donne des chiffres à lire, sans barres",
                    "この種類は人が読む数字だけで、バーはありません"};
        case WarningReason::kNoIdentifiers:
            return {
                "GS1-128 wants GS1 application identifiers, as in \"(01)09501101530003\", and the "
                "data has none",
                "GS1-128 hat Datenbezeichner wie in (01)09501101530003; diese Daten haben keine",
                "le GS1-128 a des identifiants comme dans (01)09501101530003 ; ces données n’en "
                "ont pas",
                "GS1-128 には (01)09501101530003 のような識別子が要りますが、"
                "このデータにはありません"};
        case WarningReason::kNotFourteenDigits:
            return {"ITF-14 has 14 digits, and the symbol has {0}",
                    "ITF-14 hat 14 Ziffern; dieses Symbol hat {0}",
                    "l’ITF-14 a 14 chiffres ; ce symbole en a {0}",
                    "ITF-14 は 14 桁ですが、このシンボルは {0} 桁です"};
        case WarningReason::kBarsSay:
            return {"the bars say {0}", "die Balken sagen {0}", "les barres disent {0}",
                    "バーは {0} を表します"};
        case WarningReason::kDigitsSay:
            return {"the digits to be read say {0}", "die Ziffern sagen {0}",
                    "les chiffres disent {0}", "数字は {0} です"};
        case WarningReason::kFilledUp:
            return {"zeros put in front ({0}): the number in the bars is {1}",
                    "vorn mit Nullen aufgefüllt ({0}): die Nummer in den Balken ist {1}",
                    "complété par des zéros à gauche ({0}) : le numéro dans les barres est {1}",
                    "先頭に 0 が補われました ({0} 個)。バーの番号は {1} です"};
        case WarningReason::kWrongItf14CheckDigit:
            return {"the last digit of an ITF-14 is its check digit: it is {0}, and should be {1}",
                    "die letzte Ziffer einer ITF-14 ist ihre Prüfziffer: sie ist {0} und müsste "
                    "{1} sein",
                    "le dernier chiffre d’un ITF-14 est sa clé de contrôle : c’est {0}, ce "
                    "devrait être {1}",
                    "ITF-14 の最後の桁はチェックデジットです。{0} ではなく {1} のはずです"};
        case WarningReason::kNoIdentifier:
            return {"there is no GS1 application identifier {0}",
                    "es gibt keinen GS1-Datenbezeichner {0}", "il n’y a pas d’identifiant GS1 {0}",
                    "GS1 識別子 {0} はありません"};
        case WarningReason::kElementLength:
            return {"the value of GS1 identifier ({0}) has the length {1}, not {2}",
                    "der Wert des GS1-Datenbezeichners ({0}) hat die Länge {1}, nicht {2}",
                    "la valeur de l’identifiant GS1 ({0}) est de longueur {1}, non {2}",
                    "GS1 識別子 ({0}) の値の長さは {1} ですが、{2} のはずです"};
        case WarningReason::kElementCharacter:
            return {"the value of GS1 identifier ({0}) cannot hold {1}",
                    "der Wert des GS1-Datenbezeichners ({0}) darf kein {1} enthalten",
                    "la valeur de l’identifiant GS1 ({0}) ne peut contenir {1}",
                    "GS1 識別子 ({0}) の値に {1} は使えません"};
        case WarningReason::kElementCheckDigit:
            return {"the check digit behind GS1 identifier ({0}) is {1}, and should be {2}",
                    "die Prüfziffer hinter dem GS1-Datenbezeichner ({0}) ist {1} und müsste {2} "
                    "sein",
                    "la clé de contrôle derrière l’identifiant GS1 ({0}) est {1}, ce devrait "
                    "être {2}",
                    "GS1 識別子 ({0}) のチェックデジットは {1} ではなく {2} のはずです"};
        case WarningReason::kElementDate:
            return {"the value of GS1 identifier ({0}) holds {1}, which is no date or time",
                    "der Wert des GS1-Datenbezeichners ({0}) enthält {1}; das ist kein Datum und "
                    "keine Zeit",
                    "la valeur de l’identifiant GS1 ({0}) contient {1}, qui n’est ni une date ni "
                    "une heure",
                    "GS1 識別子 ({0}) の値にある {1} は日付でも時刻でもありません"};
        case WarningReason::kNoSymbol:
            return {"the bars are no symbol of this type: no scanner reads them",
                    "kein Scanner findet in diesen Balken ein Symbol",
                    "aucun lecteur ne trouve de symbole dans ces barres",
                    "スキャナはこのバーからシンボルを読み取れません"};
    }
    return {};
}

/** English counts by its own words; the other sentences are the same for any number. */
constexpr Translations OneOf(WarningReason reason, Language language) {
    if (language == Language::kEnglish && reason == WarningReason::kAboveLatin1)
        return {"1 character above U+00FF dropped: {1}"};
    if (language == Language::kEnglish && reason == WarningReason::kDroppedByEncoder)
        return {"1 character dropped by the encoder: {1}"};
    return TranslationsOf(reason);
}

std::string Quoted(std::string_view utf8, Language language) {
    constexpr Translations kQuotes{"\"{0}\"", "„{0}“", "« {0} »", "「{0}」"};
    return Filled(kQuotes, language, Readable(utf8));
}

/** A list of characters of which only the first may be there. */
std::string Characters(const Warning& warning, Language language) {
    const std::string quoted = Quoted(warning.parameters[1], language);
    return std::stoul(warning.parameters[0]) > kMostShown ? quoted + " …" : quoted;
}

}  // namespace

std::string Sentence(const Warning& warning, Language language) {
    const WarningReason reason = warning.reason;
    const auto parameter = [&](std::size_t place) {
        return place < warning.parameters.size() ? warning.parameters[place] : std::string();
    };
    switch (reason) {
        case WarningReason::kAboveLatin1:
        case WarningReason::kDroppedByEncoder:
            return Filled(parameter(0) == "1" ? OneOf(reason, language) : TranslationsOf(reason),
                          language, parameter(0), Characters(warning, language));
        case WarningReason::kNoCode128Character:
        case WarningReason::kElementCharacter:
            return Filled(TranslationsOf(reason), language, parameter(0),
                          Quoted(parameter(1), language));
        case WarningReason::kNoIdentifier:
        case WarningReason::kBarsSay:
        case WarningReason::kDigitsSay:
            return Filled(TranslationsOf(reason), language, Quoted(parameter(0), language));
        default:
            return Filled(TranslationsOf(reason), language, Readable(parameter(0)),
                          Readable(parameter(1)), parameter(2));
    }
}

std::string JoinedWarnings(const BarcodeOutcome& outcome, Language language) {
    std::string text;
    if (outcome.note) text = Sentence(*outcome.note, language);
    for (const Warning& warning : outcome.Warnings()) {
        if (!text.empty()) text += "; ";
        text += Sentence(warning, language);
    }
    return text;
}

}  // namespace linewright
