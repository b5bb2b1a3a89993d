#pragma once

#include "workbench/Language.h"

namespace linewright::phrases {

// What the page for one barcode says.

inline constexpr Phrase kPageType{
    "Barcode &type:", "Barcode&typ:", "&Type de code-barres :", "バーコードの種類(&T):"};
inline constexpr Phrase kPageData{"&Data:", "D&aten:", "&Données :", "データ(&D):"};
inline constexpr Phrase kPageCheckDigit{"Add chec&k digit", "&Prüfziffer hinzufügen",
                                        "Ajouter la &clé de contrôle",
                                        "チェックデジットを付加(&K)"};
inline constexpr Phrase kPageRatio{"Wide-to-narrow &ratio:", "Verhältnis &breit zu schmal:",
                                   "Rapport &large/étroit :", "太細比(&R):"};
inline constexpr Phrase kPageDrawing{"Barcode", "Barcode", "Code-barres", "バーコード"};
inline constexpr Phrase kPageZoom{"&Zoom:", "&Zoom:", "&Zoom :", "ズーム(&Z):"};
inline constexpr Phrase kPageCopy{"&Copy Font Text", "Text &kopieren", "Co&pier le texte",
                                  "テキストをコピー(&C)"};
inline constexpr Phrase kPageExport{"&Export…", "&Exportieren…", "&Exporter…", "書き出し(&E)…"};
inline constexpr Phrase kScans{"Scans", "Lesbar", "Lisible", "読み取れます"};
inline constexpr Phrase kScansAs{"Scans as %1", "Lesbar als %1", "Lu comme %1",
                                 "%1 と読み取られます"};
inline constexpr Phrase kDoesNotScan{"Does not scan", "Nicht lesbar", "Illisible",
                                     "読み取れません"};
inline constexpr Phrase kNoScanner{"No scanner for this type", "Kein Scanner für diesen Typ",
                                   "Pas de lecteur pour ce type", "この種類のスキャナはありません"};
inline constexpr Phrase kCannotWrite{"%1 could not be written.",
                                     "%1 konnte nicht geschrieben werden.",
                                     "%1 n’a pas pu être écrit.", "%1 を書き込めませんでした。"};

}  // namespace linewright::phrases
