#pragma once

#include "workbench/Language.h"

namespace linewright::phrases {

// What the page for one barcode says. A letter behind "&" reaches what is named from anywhere on
// the page: such letters differ from each other, and from those of the menus.

// The types
inline constexpr Phrase kFilter{
    "&Search types:", "&Typ suchen:", "&Chercher un type :", "種類を検索(&S):"};
inline constexpr Phrase kFilterHint{"name or use", "Name oder Zweck", "nom ou usage",
                                    "名前または用途"};
inline constexpr Phrase kTypes{"Barcode types", "Barcodetypen", "Types de code-barres",
                               "バーコードの種類"};
inline constexpr Phrase kRecentGroup{"Used last", "Zuletzt verwendet", "Utilisés récemment",
                                     "最近使った種類"};
inline constexpr Phrase kRetailGroup{"Retail", "Handel", "Commerce", "小売"};
inline constexpr Phrase kLogisticsGroup{"Logistics and industry", "Logistik und Industrie",
                                        "Logistique et industrie", "物流・工業"};
inline constexpr Phrase kPostalGroup{"Mail", "Post", "Courrier", "郵便"};
inline constexpr Phrase kLibraryGroup{"Libraries and shelves", "Bibliotheken und Regale",
                                      "Bibliothèques et rayons", "図書館・棚"};
inline constexpr Phrase kClassicGroup{"Classic", "Klassisch", "Classiques", "クラシック"};

// The data
inline constexpr Phrase kPageData{"&Data:", "Dat&en:", "D&onnées :", "データ(&D):"};
inline constexpr Phrase kPageCheckDigit{"Add chec&k digit", "&Prüfziffer hinzufügen",
                                        "Ajouter la c&lé de contrôle",
                                        "チェックデジットを付加(&K)"};
inline constexpr Phrase kCheckAlways{
    "This type always has its check digit.", "Dieser Typ hat immer seine Prüfziffer.",
    "Ce type a toujours sa clé de contrôle.", "この種類には必ずチェックデジットが付きます。"};
inline constexpr Phrase kCheckByPreference{
    "The preferences say whether this type has a check digit.",
    "Die Voreinstellungen bestimmen, ob dieser Typ eine Prüfziffer hat.",
    "Les préférences disent si ce type a une clé de contrôle.",
    "この種類のチェックデジットは環境設定で決まります。"};
inline constexpr Phrase kCheckNone{"This type has no check digit to add.",
                                   "Dieser Typ hat keine Prüfziffer, die hinzukäme.",
                                   "Ce type n’a pas de clé de contrôle à ajouter.",
                                   "この種類に付加するチェックデジットはありません。"};
inline constexpr Phrase kPageRatio{"Wide-to-narrow &ratio:", "Verhältnis b&reit zu schmal:",
                                   "&Rapport large/étroit :", "太細比(&R):"};
inline constexpr Phrase kUseSample{"&Use the Sample %1", "Beispiel %1 &verwenden",
                                   "Utiliser l’exe&mple %1", "例 %1 を使う(&U)"};

// What became of it
inline constexpr Phrase kPageDrawing{"Barcode", "Barcode", "Code-barres", "バーコード"};
inline constexpr Phrase kNothingTyped{"Nothing typed", "Nichts eingegeben", "Rien de saisi",
                                      "未入力"};
inline constexpr Phrase kTakes{"%1 takes: %2", "%1 nimmt an: %2", "%1 accepte : %2",
                               "%1 に入力できるもの: %2"};
inline constexpr Phrase kRefused{"Refused", "Abgelehnt", "Refusé", "拒否"};
inline constexpr Phrase kRefusedBecause{"Refused: %1", "Abgelehnt: %1", "Refusé : %1", "拒否: %1"};
inline constexpr Phrase kNotDrawn{"Not drawn", "Nicht gezeichnet", "Non dessiné", "描画できません"};
inline constexpr Phrase kError{"Error: %1", "Fehler: %1", "Erreur : %1", "エラー: %1"};
inline constexpr Phrase kWarning{"Warning: %1", "Warnung: %1", "Attention : %1", "警告: %1"};
inline constexpr Phrase kChecking{"Scanners are reading…", "Scanner lesen…", "Lecture en cours…",
                                  "読み取り中…"};
inline constexpr Phrase kScans{"Scans", "Lesbar", "Lisible", "読み取れます"};
inline constexpr Phrase kScansButSays{"Scans; the bars say %1", "Lesbar; die Balken sagen %1",
                                      "Lisible ; les barres disent %1",
                                      "読み取れます。バーの内容: %1"};
inline constexpr Phrase kScansAs{"Scans as %1", "Lesbar als %1", "Lu comme %1",
                                 "%1 と読み取られます"};
inline constexpr Phrase kDoesNotScan{"Does not scan", "Nicht lesbar", "Illisible",
                                     "読み取れません"};
inline constexpr Phrase kNoScanner{
    "No scanner reads this symbology; bars measured against the standard",
    "Kein Scanner liest diese Symbologie; Balken an der Norm gemessen",
    "Aucun lecteur ne lit cette symbologie ; barres mesurées selon la norme",
    "この種類を読むスキャナはありません。バーは規格と照合済み"};
inline constexpr Phrase kNoScannerButSays{
    "No scanner reads this symbology; the bars say %1",
    "Kein Scanner liest diese Symbologie; die Balken sagen %1",
    "Aucun lecteur ne lit cette symbologie ; les barres disent %1",
    "この種類を読むスキャナはありません。バーの内容: %1"};
inline constexpr Phrase kDigitsOnly{"Digits to read, no bars", "Ziffern zum Lesen, keine Balken",
                                    "Chiffres à lire, sans barres", "読むための数字(バーなし)"};
inline constexpr Phrase kScannerVerdict{"Scan check: %1", "Leseprüfung: %1",
                                        "Contrôle de lecture : %1", "読み取り検査: %1"};
inline constexpr Phrase kPageFont{"Font", "Schrift", "Police", "フォント"};

// How large it is shown
inline constexpr Phrase kPageZoom{"&Zoom:", "&Zoom:", "&Zoom :", "ズーム(&Z):"};
inline constexpr Phrase kFit{"Fi&t", "Einpassen", "Ajuster", "全体表示(&T)"};
inline constexpr Phrase kPercentOfPaper{"%1 % of paper size", "%1 % der Druckgröße",
                                        "%1 % de l’imprimé", "印刷サイズの %1 %"};

// The sizes
inline constexpr Phrase kXDimension{
    "&X-dimension:", "&Modulbreite:", "&Dimension X :", "X 寸法(&X):"};
inline constexpr Phrase kMagnification{
    "&Magnification:", "Ver&größerung:", "Éc&helle :", "倍率(&M):"};
inline constexpr Phrase kHeight{"Bar hei&ght:", "H&öhe:", "Haute&ur :", "高さ(&G):"};
inline constexpr Phrase kQuietZone{"&Quiet zone:", "R&uhezone:", "&Silence :", "余白(&Q):"};
inline constexpr Phrase kReduction{
    "&Bar reduction:", "&Korrektur:", "Réduction &barres :", "バー幅補正(&B):"};
inline constexpr Phrase kResolution{
    "Dev&ice dpi:", "Gerät (dp&i):", "Résolut&ion :", "解像度 dpi(&I):"};
inline constexpr Phrase kNoResolution{"any", "beliebig", "toute", "指定なし"};
inline constexpr Phrase kTextBelow{"Text bel&ow", "Klarschri&ft", "&Texte dessous", "下に文字(&O)"};
inline constexpr Phrase kBearerBars{"Bearer bars", "Trägerbalken", "Barres porteuses",
                                    "ベアラバー"};
inline constexpr Phrase kMarginMarks{"Margin marks", "Hellzonenzeichen", "Repères de marge",
                                     "余白マーク"};
inline constexpr Phrase kUsualSizes{"Usua&l Sizes", "Übli&che Größen", "&Valeurs usuelles",
                                    "標準サイズ(&L)"};
inline constexpr Phrase kDrawnSize{"Size", "Größe", "Taille", "サイズ"};
inline constexpr Phrase kDrawnSizes{"%1 × %2 mm (%3 × %4 pt), narrowest bar %5 mm (%6 pt)",
                                    "%1 × %2 mm (%3 × %4 pt), schmalster Balken %5 mm (%6 pt)",
                                    "%1 × %2 mm (%3 × %4 pt), barre la plus étroite %5 mm (%6 pt)",
                                    "%1 × %2 mm (%3 × %4 pt)、最も細いバー %5 mm (%6 pt)"};
inline constexpr Phrase kDotsPerModule{", %1 dots", ", %1 Punkte", ", %1 points", "、%1 ドット"};

// Out of the window
inline constexpr Phrase kPageCopy{"&Copy Font Text", "Fonttext k&opieren",
                                  "Co&pier le texte de police", "フォントテキストをコピー(&C)"};
inline constexpr Phrase kCopyAs{"Cop&y As", "Kopieren als", "Copier en", "形式を選んでコピー(&Y)"};
inline constexpr Phrase kPageExport{"Ex&port…", "E&xportieren…", "E&xporter…", "書き出し(&P)…"};
inline constexpr Phrase kNothingCopied{"There is nothing to copy.", "Es gibt nichts zu kopieren.",
                                       "Il n’y a rien à copier.", "コピーするものがありません。"};

}  // namespace linewright::phrases
