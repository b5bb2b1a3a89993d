#include "text/Readable.h"
#include "words/Translations.h"

namespace linewright {

namespace {

constexpr Translations TranslationsOf(NumberReason reason) {
    switch (reason) {
        case NumberReason::kBrought:
            return {"{0} {1} was brought to the type's form: {2}",
                    "{0} {1} wurde in die Form des Typs gebracht: {2}",
                    "{0} {1} a été mis sous la forme du type : {2}",
                    "{0} {1} はこの種類の形式 {2} に変換されました"};
        case NumberReason::kNoNumber:
            return {"{0} is no article number: 8, 12, 13 or 14 digits, an ISBN or an ISSN",
                    "{0} ist keine Artikelnummer: 8, 12, 13 oder 14 Ziffern, eine ISBN oder eine "
                    "ISSN",
                    "{0} n’est pas un numéro d’article : 8, 12, 13 ou 14 chiffres, un ISBN ou un "
                    "ISSN",
                    "{0} は商品番号ではありません。8、12、13、14 桁の数字か ISBN、ISSN が必要です"};
        case NumberReason::kWrongCheckDigit:
            return {"the check digit of {0} {1} is {2}, and should be {3}",
                    "die Prüfziffer von {0} {1} ist {2} und müsste {3} sein",
                    "la clé de contrôle de {0} {1} est {2}, ce devrait être {3}",
                    "{0} {1} のチェックデジットは {2} ではなく {3} のはずです"};
        case NumberReason::kNoForm:
            return {"{0} {1} has no form as {2}", "{0} {1} gibt es nicht in der Form {2}",
                    "{0} {1} n’existe pas sous la forme {2}", "{0} {1} に {2} の形式はありません"};
        case NumberReason::kNoArticleType:
            return {"{0} is no type of article numbers", "{0} ist kein Typ für Artikelnummern",
                    "{0} n’est pas un type de numéros d’article",
                    "{0} は商品番号の種類ではありません"};
    }
    return {};
}

constexpr Translations kUpcANumbers{
    "{0} of {1} numbers of 12 digits end with the check digit of UPC-A: as EAN-13 they get another "
    "one behind it; the type upca or --gtin keeps them",
    "{0} von {1} Nummern mit 12 Ziffern enden mit der Prüfziffer von UPC-A: als EAN-13 bekommen "
    "sie "
    "dahinter noch eine; der Typ upca oder --gtin erhält sie",
    "{0} numéros de 12 chiffres sur {1} finissent par la clé de l’UPC-A : en EAN-13 ils en "
    "reçoivent "
    "une autre ; le type upca ou --gtin les garde",
    "12 桁の番号 {1} 個のうち {0} 個は UPC-A のチェックデジットで終わります。EAN-13 ではさらに 1 桁"
    "加わります。upca または --gtin で元の番号になります"};
constexpr std::size_t kShownOfNumber = 80;

}  // namespace

std::string Sentence(const NumberFinding& finding, Language language) {
    const auto parameter = [&](std::size_t place) {
        return place < finding.parameters.size()
                   ? Readable(finding.parameters[place].substr(0, kShownOfNumber))
                   : std::string();
    };
    return Filled(TranslationsOf(finding.reason), language, parameter(0), parameter(1),
                  parameter(2), parameter(3));
}

std::string Sentence(const UpcANumbers& numbers, Language language) {
    return Filled(kUpcANumbers, language, numbers.count, numbers.of);
}

}  // namespace linewright
