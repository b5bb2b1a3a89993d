#pragma once

#include "workbench/Language.h"

namespace linewright::phrases {

// What the page for lists says. Letters behind "&" differ from each other, and from the menus'.

// Where rows come from
inline constexpr Phrase kOpenList{"&Open…", "Ö&ffnen…", "&Ouvrir…", "開く(&O)…"};
inline constexpr Phrase kPasteCells{"&Paste", "&Einfügen", "&Coller", "貼り付け(&P)"};
inline constexpr Phrase kSequence{"&Sequence…", "Nummernf&olge…", "&Série…", "連番(&S)…"};
inline constexpr Phrase kClearList{"C&lear", "&Leeren", "&Vider", "消去(&L)"};
inline constexpr Phrase kDeleteRows{"&Delete Rows", "&Zeilen löschen", "Supprimer les &lignes",
                                    "行を削除(&D)"};
inline constexpr Phrase kListFiles{"Tables", "Tabellen", "Tableaux", "表"};
inline constexpr Phrase kAllFiles{"All files", "Alle Dateien", "Tous les fichiers",
                                  "すべてのファイル"};
inline constexpr Phrase kReallyReplace{
    "The list has %1 rows. Replace them?", "Die Liste hat %1 Zeilen. Sollen sie ersetzt werden?",
    "La liste a %1 lignes. Les remplacer ?", "リストには %1 行あります。置き換えますか。"};
inline constexpr Phrase kReallyClear{"The list has %1 rows. Remove all of them?",
                                     "Die Liste hat %1 Zeilen. Sollen alle entfernt werden?",
                                     "La liste a %1 lignes. Les supprimer toutes ?",
                                     "リストには %1 行あります。すべて消去しますか。"};
inline constexpr Phrase kReading{"Reading %1…", "%1 wird gelesen…", "Lecture de %1…",
                                 "%1 を読み込み中…"};
inline constexpr Phrase kWhichEncoding{
    "%1 is not written in the characters that it seems to be written in. What is it in?",
    "%1 ist nicht in den Zeichen geschrieben, nach denen es aussieht. Worin dann?",
    "%1 n’est pas écrit dans les caractères attendus. Dans lesquels ?",
    "%1 の文字コードを判別できません。どれで書かれていますか。"};
inline constexpr Phrase kNothingToPaste{
    "There is no text to paste.", "Es gibt keinen Text zum Einfügen.",
    "Il n’y a pas de texte à coller.", "貼り付けるテキストがありません。"};
inline constexpr Phrase kEmptyList{
    "Paste or drop cells of a spreadsheet, open a file, or count a sequence.",
    "Zellen einer Tabelle einfügen oder hierher ziehen, eine Datei öffnen oder eine Nummernfolge "
    "zählen.",
    "Collez ou déposez des cellules, ouvrez un fichier ou comptez une série.",
    "セルを貼り付けるかドロップするか、ファイルを開くか、連番を作成してください。"};

// What rows ask for
inline constexpr Phrase kListType{"&Type:", "&Typ:", "&Type :", "種類(&T):"};
inline constexpr Phrase kTypeInColumn{"in column %1", "in Spalte %1", "dans la colonne %1",
                                      "列 %1 の値"};
inline constexpr Phrase kDataColumn{
    "&Data in:", "Daten in S&palte:", "&Données dans :", "データの列(&D):"};
inline constexpr Phrase kColumn{"Column %1", "Spalte %1", "Colonne %1", "列 %1"};
inline constexpr Phrase kListCheckDigit{"Add chec&k digit", "Prüfziffer hin&zufügen",
                                        "Ajo&uter la clé", "チェックデジットを付加(&K)"};
inline constexpr Phrase kListRatio{"&Ratio:", "&Verhältnis:", "&Rapport :", "太細比(&R):"};
inline constexpr Phrase kHasHeader{"First ro&w has names", "E&rste Zeile enthält Namen",
                                   "Noms en 1re li&gne", "先頭行は見出し(&W)"};
inline constexpr Phrase kListSizes{"Si&zes:", "&Größen:", "Di&mensions :", "サイズ(&Z):"};
inline constexpr Phrase kPresets{"Presets", "Vorgaben", "Préréglages", "プリセット"};
inline constexpr Phrase kUsualSizes{"As usual for each type", "Wie beim Typ üblich",
                                    "Habituelles du type", "種類ごとの標準"};
inline constexpr Phrase kStorePreset{"Store…", "Speichern…", "Enregistrer…", "保存…"};
inline constexpr Phrase kRemovePreset{"Remove", "Entfernen", "Supprimer", "削除"};
inline constexpr Phrase kPresetName{
    "Name of the preset:", "Name der Vorgabe:", "Nom du préréglage :", "プリセットの名前:"};
inline constexpr Phrase kReallyRemove{
    "Remove the preset “%1”?", "Soll die Vorgabe „%1“ entfernt werden?",
    "Supprimer le préréglage « %1 » ?", "プリセット「%1」を削除しますか。"};

// What became of rows
inline constexpr Phrase kRowState{"Status", "Stand", "État", "状態"};
inline constexpr Phrase kRowWaiting{"…", "…", "…", "…"};
inline constexpr Phrase kRowMade{"Made", "Erzeugt", "Créé", "作成済み"};
inline constexpr Phrase kRowWarned{"Warning", "Warnung", "Attention", "警告"};
inline constexpr Phrase kRowRefused{"Refused", "Abgelehnt", "Refusé", "拒否"};
inline constexpr Phrase kRowBecause{"%1: %2", "%1: %2", "%1 : %2", "%1: %2"};
inline constexpr Phrase kRows{"Rows", "Zeilen", "Lignes", "行"};
inline constexpr Phrase kTally{"%1 rows: %2 made, %3 with warnings, %4 refused",
                               "%1 Zeilen: %2 erzeugt, %3 mit Warnung, %4 abgelehnt",
                               "%1 lignes : %2 créées, %3 avec avertissement, %4 refusées",
                               "%1 行: 作成 %2、警告あり %3、拒否 %4"};
inline constexpr Phrase kTallyWaiting{", %5 to come", ", %5 stehen aus", ", %5 en attente",
                                      "、残り %5"};
inline constexpr Phrase kOnlyProblems{"Only pro&blems", "N&ur Probleme", "Seulement les pro&blèmes",
                                      "問題のある行のみ(&B)"};

// Where barcodes go
inline constexpr Phrase kCopyTexts{"&Copy Font Texts", "Schrifttexte &kopieren",
                                   "Cop&ier les textes de police",
                                   "フォント用テキストをコピー(&C)"};
inline constexpr Phrase kCopied{
    "%1 font texts copied, one a line; %2 refused rows have an empty line.",
    "%1 Schrifttexte kopiert, einer je Zeile; %2 abgelehnte haben eine leere Zeile.",
    "%1 textes copiés, un par ligne ; %2 lignes refusées sont vides.",
    "%1 件のテキストを 1 行ずつコピーしました。拒否された %2 行は空行です。"};
inline constexpr Phrase kExportList{"E&xport", "E&xportieren", "E&xporter", "書き出し(&X)"};
inline constexpr Phrase kAFileARow{"A File for Each Row", "Eine Datei je Zeile",
                                   "Un fichier par ligne", "行ごとにファイル"};
inline constexpr Phrase kProof{"Proof (PDF)…", "Prüfblatt (PDF)…", "Épreuve (PDF)…",
                               "校正刷り (PDF)…"};
inline constexpr Phrase kResultsCsv{"Table with Results (CSV)…", "Tabelle mit Ergebnissen (CSV)…",
                                    "Tableau avec résultats (CSV)…", "結果つきの表 (CSV)…"};
inline constexpr Phrase kLabels{"Label Sheet or Document…", "Etikettenbogen oder Dokument…",
                                "Planche d’étiquettes ou document…", "ラベルシートまたは文書…"};
inline constexpr Phrase kLabelSheet{
    "Sheet of labels:", "Etikettenbogen:", "Planche d’étiquettes :", "ラベルシート:"};
inline constexpr Phrase kLabelEnding{
    "%1: the name must end in .pdf, .idml, .odt or .fodt.",
    "%1: der Name muss auf .pdf, .idml, .odt oder .fodt enden.",
    "%1 : le nom doit se terminer par .pdf, .idml, .odt ou .fodt.",
    "%1: 名前の末尾は .pdf、.idml、.odt、.fodt のいずれかにしてください。"};
inline constexpr Phrase kPrintList{"Pr&int…", "Dru&cken…", "Im&primer…", "印刷(&I)…"};
inline constexpr Phrase kProofTitle{"Linewright proof", "Linewright proof", "Linewright proof",
                                    "Linewright proof"};
inline constexpr Phrase kFilesThere{"%1 of the files are there already. Replace them?",
                                    "%1 der Dateien gibt es schon. Sollen sie ersetzt werden?",
                                    "%1 des fichiers existent déjà. Les remplacer ?",
                                    "%1 個のファイルがすでにあります。置き換えますか。"};
inline constexpr Phrase kWorking{"%1 of %2 rows", "%1 von %2 Zeilen", "%1 lignes sur %2",
                                 "%2 行中 %1 行"};
inline constexpr Phrase kCancel{"Cancel", "Abbrechen", "Annuler", "キャンセル"};
inline constexpr Phrase kDone{"%1 rows are done.", "%1 Zeilen sind fertig.",
                              "%1 lignes sont prêtes.", "%1 行が完了しました。"};
inline constexpr Phrase kSomeRefused{
    "%1 rows were refused and left out:", "%1 Zeilen wurden abgelehnt und fehlen:",
    "%1 lignes refusées ont été omises :", "拒否された %1 行は含まれていません:"};
inline constexpr Phrase kRefusedRow{"Row %1, “%2”: %3", "Zeile %1, „%2“: %3",
                                    "Ligne %1, « %2 » : %3", "%1 行目「%2」: %3"};
inline constexpr Phrase kStopped{"Cancelled after %1 rows.", "Nach %1 Zeilen abgebrochen.",
                                 "Annulé après %1 lignes.", "%1 行で中止しました。"};
inline constexpr Phrase kFailed{"This cannot be done: %1", "Das geht nicht: %1",
                                "Cela n’a pas pu se faire : %1", "実行できません: %1"};
inline constexpr Phrase kTooManyToPrint{
    "At most %1 rows are printed at a time: choose some, or print the proof.",
    "Höchstens %1 Zeilen werden auf einmal gedruckt: wählen Sie welche aus, oder drucken Sie das "
    "Prüfblatt.",
    "On imprime au plus %1 lignes à la fois : choisissez-en, ou imprimez l’épreuve.",
    "一度に印刷できるのは %1 行までです。行を選ぶか、校正刷りを印刷してください。"};
inline constexpr Phrase kWiderThanPage{
    "the barcode is larger than the page", "der Barcode ist größer als die Seite",
    "le code-barres est plus grand que la page", "バーコードがページより大きくなります"};

// The sequence
inline constexpr Phrase kSequenceTitle{"Sequence", "Nummernfolge", "Série", "連番"};
inline constexpr Phrase kPrefix{"&In front:", "&Davor:", "&Avant :", "前(&I):"};
inline constexpr Phrase kFirstNumber{
    "&First number:", "&Erste Nummer:", "&Premier numéro :", "最初の番号(&F):"};
inline constexpr Phrase kSuffix{"&Behind:", "Da&hinter:", "A&près :", "後ろ(&B):"};
inline constexpr Phrase kStep{"S&tep:", "S&chritt:", "Pa&s :", "間隔(&T):"};
inline constexpr Phrase kHowMany{"&How many:", "&Wie viele:", "&Combien :", "個数(&H):"};
inline constexpr Phrase kNoNumber{
    "The first number has 1 to %1 digits and nothing else; what stands around it goes in front and "
    "behind.",
    "Die erste Nummer hat 1 bis %1 Ziffern und sonst nichts; was um sie herum steht, kommt davor "
    "und dahinter.",
    "Le premier numéro a de 1 à %1 chiffres et rien d’autre ; le reste va avant et après.",
    "最初の番号は 1 から %1 桁の数字だけです。ほかの文字は前と後ろに入力してください。"};
inline constexpr Phrase kTooLarge{
    "The last number would be %1 and have more digits than the first; zeros in front of the first "
    "make room.",
    "Die letzte Nummer wäre %1 und hätte mehr Ziffern als die erste; Nullen vor der ersten "
    "schaffen "
    "Platz.",
    "Le dernier numéro serait %1 et aurait plus de chiffres que le premier ; des zéros devant le "
    "premier font de la place.",
    "最後の番号は %1 となり、最初の番号より桁数が多くなります。最初の番号の前に 0 "
    "を加えてください。"};
inline constexpr Phrase kBelowZero{"The last number would be %1; numbers end at zero.",
                                   "Die letzte Nummer wäre %1; Nummern enden bei null.",
                                   "Le dernier numéro serait %1 ; les numéros s’arrêtent à zéro.",
                                   "最後の番号は %1 となります。番号は 0 までです。"};

}  // namespace linewright::phrases
