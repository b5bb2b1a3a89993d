#include <string>
#include <vector>

#include "text/Readable.h"
#include "words/Translations.h"

namespace linewright {

namespace {

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
        case Reason::kNoTextFace:
            return {"the font for text, {0}, is not installed or cannot be read",
                    "die Schrift für Text, {0}, ist nicht installiert oder nicht lesbar",
                    "la police du texte, {0}, n’est pas installée ou n’est pas lisible",
                    "テキスト用フォント {0} がないか、読み込めません"};
        case Reason::kNoBars:
            return {"digits without bars have neither height nor bar width reduction",
                    "Ziffern ohne Balken haben weder Höhe noch Balkenbreitenkorrektur",
                    "des chiffres sans barres n’ont ni hauteur ni réduction de barres",
                    "バーのない数字には高さもバー幅補正もありません"};
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
        case Reason::kXDimension:
            return {"the X-dimension can be {0} mm to {1} mm",
                    "die Modulbreite kann {0} mm bis {1} mm sein",
                    "la dimension X peut aller de {0} mm à {1} mm",
                    "X 寸法は {0} mm から {1} mm までです"};
        case Reason::kPage:
            return {"the drawing would be longer than {0} mm, the most that a page can be",
                    "die Zeichnung würde länger als {0} mm, so lang wie eine Seite höchstens ist",
                    "le dessin dépasserait {0} mm, le maximum d’une page",
                    "図がページの上限 {0} mm を超えます"};
        case Reason::kPicture:
            return {"the picture would have more than {0} pixels, the most that one can have",
                    "das Bild hätte mehr als {0} Pixel, so viele wie eines höchstens hat",
                    "l’image dépasserait {0} pixels, le maximum possible",
                    "画像が上限の {0} ピクセルを超えます"};
        case Reason::kNoWholeDots:
            return {"at {0} dpi a module has {1} dots; whole ones: {2} mm, {3} %, {4} dots",
                    "bei {0} dpi hat ein Modul {1} Punkte; ganze: {2} mm, {3} %, {4} Punkte",
                    "à {0} dpi, un module a {1} points ; entiers : {2} mm, {3} %, {4} points",
                    "{0} dpi では 1 モジュールが {1} ドットです。整数になる値: "
                    "{2} mm、{3} %、{4} ドット"};
        case Reason::kOddPixels:
            return {
                "with the ratio 2.5 bars end on half modules: the number of pixels a module "
                "must be even",
                "beim Verhältnis 2,5 enden Balken auf halben Modulen: die Zahl der Pixel je "
                "Modul muss gerade sein",
                "avec le rapport 2,5, des barres finissent sur des demi-modules : le nombre "
                "de pixels par module doit être pair",
                "比率 2.5 ではバーが半モジュールで終わるため、モジュールのピクセル数は偶数で"
                "なければなりません"};
        case Reason::kNoBearer:
            return {"bearer bars belong to Interleaved 2 of 5",
                    "Trägerbalken gehören zu Interleaved 2 of 5",
                    "les barres porteuses vont avec l’Interleaved 2 of 5",
                    "ベアラバーは Interleaved 2 of 5 のものです"};
        case Reason::kNoMarginMarks:
            return {"light-margin marks belong to EAN-13, JAN-13 and EAN-8",
                    "Hellzonenzeichen gehören zu EAN-13, JAN-13 und EAN-8",
                    "les repères de marge claire vont avec EAN-13, JAN-13 et EAN-8",
                    "余白マークは EAN-13、JAN-13、EAN-8 のものです"};
        case Reason::kInk:
            return {"this kind of file knows black alone; PDF and EPS know other inks",
                    "diese Art von Datei kennt nur Schwarz; PDF und EPS kennen andere Farben",
                    "ce type de fichier ne connaît que le noir ; PDF et EPS ont d’autres encres",
                    "この形式は黒だけです。ほかのインクは PDF と EPS で使えます"};
        case Reason::kLibrary:
            return {"the drawing could not be made: {0}",
                    "die Zeichnung konnte nicht gemacht werden: {0}",
                    "le dessin n’a pas pu être fait : {0}", "図を作成できませんでした: {0}"};
    }
    return {};
}

constexpr Translations TranslationsOf(DrawingWarning::Kind kind) {
    using Kind = DrawingWarning::Kind;
    switch (kind) {
        case Kind::kXDimension:
            return {"the X-dimension of {0} mm lies outside the symbology's {1} mm to {2} mm",
                    "die Modulbreite {0} mm liegt außerhalb von {1} mm bis {2} mm der Symbologie",
                    "la dimension X de {0} mm sort des {1} mm à {2} mm de la symbologie",
                    "X 寸法 {0} mm はこのシンボルの範囲 {1} mm から {2} mm の外です"};
        case Kind::kPostalPitch:
            return {"{0} bars an inch are outside the postal tolerance of {1} to {2}",
                    "{0} Balken je Zoll liegen außerhalb der Toleranz der Post von {1} bis {2}",
                    "{0} barres par pouce sortent de la tolérance postale de {1} à {2}",
                    "1 インチあたり {0} 本は郵便の許容範囲 {1} から {2} 本の外です"};
        case Kind::kQuietZone:
            return {"the quiet zone is below the standard's: {0} X on the left, {1} X on the right",
                    "die Ruhezone ist kleiner als in der Norm: {0} X links, {1} X rechts",
                    "la zone de silence est inférieure à la norme : {0} X à gauche, {1} X à droite",
                    "クワイエットゾーンが規格より狭いです。規格は左 {0} X、右 {1} X です"};
        case Kind::kLowBars:
            return {
                "bars of {0} mm are lower than the {1} mm that a symbol of this size should have",
                "Balken von {0} mm sind niedriger als {1} mm, wie sie so ein Symbol haben soll",
                "des barres de {0} mm sont plus basses que les {1} mm d’un symbole de "
                "cette taille",
                "バーの高さ {0} mm は、この大きさのシンボルに必要な {1} mm より低いです"};
        case Kind::kReductionLost:
            return {"at 600 dpi this reduction is lost",
                    "bei 600 dpi geht diese Korrektur verloren",
                    "à 600 dpi, cette réduction se perd", "600 dpi ではこの補正は失われます"};
    }
    return {};
}

std::string Sentence(const Translations& translations, Language language,
                     const std::vector<std::string>& parameters) {
    const auto parameter = [&](std::size_t place) {
        return place < parameters.size() ? Readable(parameters[place]) : std::string();
    };
    return Filled(translations, language, parameter(0), parameter(1), parameter(2), parameter(3),
                  parameter(4));
}

}  // namespace

std::string Sentence(const DrawingFailure& failure, Language language) {
    return Sentence(TranslationsOf(failure.problem.reason), language, failure.problem.parameters);
}

std::string Sentence(const DrawingWarning& warning, Language language) {
    return Sentence(TranslationsOf(warning.kind), language, warning.parameters);
}

}  // namespace linewright
