#pragma once

#include "workbench/Language.h"

namespace linewright::phrases {

// What is said where a barcode leaves the window.

// The menus
inline constexpr Phrase kMenuCopyText{"&Copy Font Text", "&Fonttext kopieren",
                                      "&Copier le texte de police", "フォントテキストをコピー(&C)"};
inline constexpr Phrase kMenuCopySvg{"Copy as &SVG", "Als &SVG kopieren", "Copier en &SVG",
                                     "SVG でコピー(&S)"};
inline constexpr Phrase kMenuCopyPdf{"Copy as &PDF", "Als &PDF kopieren", "Copier en &PDF",
                                     "PDF でコピー(&P)"};
inline constexpr Phrase kMenuCopyPng{"Copy as P&NG", "Als P&NG kopieren", "Copier en P&NG",
                                     "PNG でコピー(&N)"};
inline constexpr Phrase kMenuShowCommand{"Show the Co&mmand…", "&Befehl anzeigen…",
                                         "Afficher la co&mmande…", "コマンドを表示(&M)…"};
inline constexpr Phrase kMenuExport{"&Export…", "&Exportieren…", "&Exporter…", "書き出し(&E)…"};
inline constexpr Phrase kMenuRecent{"&Recent Barcodes", "&Zuletzt verwendete Barcodes",
                                    "Codes-barres &récents", "最近のバーコード(&R)"};
inline constexpr Phrase kMenuClearRecent{"&Clear the List", "Liste &leeren", "&Vider la liste",
                                         "一覧を消去(&C)"};
inline constexpr Phrase kMenuZoomIn{"Zoom &In", "Ver&größern", "Zoom a&vant", "拡大(&I)"};
inline constexpr Phrase kMenuZoomOut{"Zoom &Out", "Ver&kleinern", "Zoom a&rrière", "縮小(&O)"};
inline constexpr Phrase kMenuFit{"&Fit in the Window", "Ins Fenster &einpassen",
                                 "&Ajuster à la fenêtre", "ウインドウに合わせる(&F)"};
inline constexpr Phrase kMenuFindType{"Find a &Type", "&Typ suchen", "Chercher un &type",
                                      "種類を検索(&T)"};
inline constexpr Phrase kMenuTypeData{"Go to the &Data", "Zu den &Daten", "Aller aux &données",
                                      "データへ移動(&D)"};

// What was done
inline constexpr Phrase kTextCopied{"The font text is copied: set it in %1.",
                                    "Der Fonttext ist kopiert: in %1 setzen.",
                                    "Le texte de police est copié : à composer en %1.",
                                    "フォントテキストをコピーしました。%1 で組んでください。"};
inline constexpr Phrase kPlainTextCopied{"The digits are copied.", "Die Ziffern sind kopiert.",
                                         "Les chiffres sont copiés.", "数字をコピーしました。"};
inline constexpr Phrase kPictureCopied{
    "The barcode is copied as %1.", "Der Barcode ist als %1 kopiert.",
    "Le code-barres est copié en %1.", "バーコードを %1 でコピーしました。"};
inline constexpr Phrase kFileWritten{"%1 is written.", "%1 ist geschrieben.", "%1 est enregistré.",
                                     "%1 を書き出しました。"};

// The dialog for files
inline constexpr Phrase kExportTitle{"Export", "Exportieren", "Exporter", "書き出し"};
inline constexpr Phrase kExportFormat{"&Format:", "&Format:", "&Format :", "形式(&F):"};
inline constexpr Phrase kExportFile{"F&ile:", "&Datei:", "F&ichier :", "ファイル(&I):"};
inline constexpr Phrase kExportBrowse{"&Browse…", "D&urchsuchen…", "&Parcourir…", "参照(&B)…"};
inline constexpr Phrase kExportInk{"I&nk:", "Fa&rbe:", "&Encre :", "インク(&N):"};
inline constexpr Phrase kExportInkHelp{
    "black, cmyk:C,M,Y,K in per cent, or the name of a spot colour; PDF and EPS",
    "black, cmyk:C,M,Y,K in Prozent oder der Name einer Schmuckfarbe; PDF und EPS",
    "black, cmyk:C,M,Y,K en pour cent ou le nom d’un ton direct ; PDF et EPS",
    "black、cmyk:C,M,Y,K（%）、または特色名。PDF と EPS"};
inline constexpr Phrase kExportDots{
    "&Picture dpi:", "&Bild (dpi):", "I&mage (ppp) :", "画像の dpi(&P):"};
inline constexpr Phrase kExportGrey{
    "Smooth &text (8 bits a pixel)", "&Glatter Text (8 Bit je Pixel)",
    "&Texte lissé (8 bits par pixel)", "文字を滑らかに（8 ビット）(&T)"};
inline constexpr Phrase kExportSave{"&Save", "&Speichern", "&Enregistrer", "保存(&S)"};
inline constexpr Phrase kCancel{"Cancel", "Abbrechen", "Annuler", "キャンセル"};
inline constexpr Phrase kClose{"Close", "Schließen", "Fermer", "閉じる"};
inline constexpr Phrase kAlreadyThere{
    "%1 is there already. Replace it?", "%1 gibt es schon. Ersetzen?",
    "%1 existe déjà. Le remplacer ?", "%1 はすでにあります。置き換えますか？"};
inline constexpr Phrase kNoFileName{"The file has no name.", "Die Datei hat keinen Namen.",
                                    "Le fichier n’a pas de nom.", "ファイル名がありません。"};
inline constexpr Phrase kOtherEnding{
    "The name ends in .%1, but a file of this format ends in .%2.",
    "Der Name endet auf .%1, eine Datei dieses Formats aber auf .%2.",
    "Le nom finit par .%1, mais un fichier de ce format finit par .%2.",
    "名前が .%1 で終わっていますが、この形式のファイルは .%2 で終わります。"};
inline constexpr Phrase kNoInk{
    "“%1” is no ink such as black, cmyk:0,0,0,100 or the name of a spot colour.",
    "„%1“ ist keine Farbe wie black, cmyk:0,0,0,100 oder der Name einer Schmuckfarbe.",
    "« %1 » n’est pas une encre telle que black, cmyk:0,0,0,100 ou le nom d’un ton direct.",
    "「%1」は black、cmyk:0,0,0,100、特色名などのインクではありません。"};
inline constexpr Phrase kCannotWrite{
    "%1 could not be written: %2", "%1 konnte nicht geschrieben werden: %2",
    "%1 n’a pas pu être écrit : %2", "%1 を書き込めませんでした: %2"};

// The dialog for the command
inline constexpr Phrase kCommandTitle{"The Command", "Der Befehl", "La commande", "コマンド"};
inline constexpr Phrase kCommandHelp{
    "In a shell this line &writes the same file:",
    "In einer Shell schreibt diese &Zeile dieselbe Datei:",
    "Dans un shell, cette &ligne écrit le même fichier :", "シェルで同じファイルを書き出す行(&W):"};
inline constexpr Phrase kCopyCommand{"&Copy", "&Kopieren", "&Copier", "コピー(&C)"};

// The dialog for the fonts
inline constexpr Phrase kFontsInstalled{
    "%1 barcode fonts are installed in %2. Programs that run already may have to be started again.",
    "%1 Barcodeschriften sind in %2 installiert. Laufende Programme müssen vielleicht neu "
    "gestartet werden.",
    "%1 polices de codes-barres sont installées dans %2. Les programmes déjà ouverts devront "
    "peut-être être relancés.",
    "バーコードフォント %1 個を %2 "
    "にインストールしました。起動中のプログラムは再起動が必要な場合があります。"};
inline constexpr Phrase kFontsNotInstalled{
    "The fonts could not be installed: %1", "Die Schriften konnten nicht installiert werden: %1",
    "Les polices n’ont pas pu être installées : %1", "フォントをインストールできませんでした: %1"};

}  // namespace linewright::phrases
