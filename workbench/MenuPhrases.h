#pragma once

#include "workbench/Language.h"

namespace linewright::phrases {

// What stands in the menus of the window.

inline constexpr Phrase kFileMenu{"&File", "&Datei", "&Fichier", "ファイル(&F)"};
inline constexpr Phrase kQuit{"&Quit", "&Beenden", "&Quitter", "終了(&Q)"};
inline constexpr Phrase kLanguageMenu{"L&anguage", "&Sprache", "Lan&gue", "言語(&A)"};
inline constexpr Phrase kNoPlugIn{
    "The plug-in could not be started", "Das Zusatzmodul konnte nicht gestartet werden",
    "Le module n’a pas pu démarrer", "プラグインを起動できませんでした"};
inline constexpr Phrase kEditMenu{"&Edit", "&Bearbeiten", "&Édition", "編集(&E)"};
inline constexpr Phrase kViewMenu{"&View", "&Ansicht", "&Affichage", "表示(&V)"};
inline constexpr Phrase kBarcodePage{"Barcode", "Barcode", "Code-barres", "バーコード"};
inline constexpr Phrase kListPage{"List", "Liste", "Liste", "リスト"};
inline constexpr Phrase kHelpMenu{"&Help", "&Hilfe", "Aid&e", "ヘルプ(&H)"};
inline constexpr Phrase kHelp{"&Help", "&Hilfe", "&Aide", "ヘルプ(&H)"};
inline constexpr Phrase kAbout{"&About Linewright", "Ü&ber Linewright", "À &propos de Linewright",
                               "Linewright について(&A)"};
inline constexpr Phrase kAboutTitle{"About Linewright", "Über Linewright", "À propos de Linewright",
                                    "Linewright について"};
inline constexpr Phrase kAboutText{
    "Linewright %1\n\nBarcodes as text for their fonts, and as drawings.\n\nQt %2, %3",
    "Linewright %1\n\nBarcodes als Text für ihre Schriften und als Zeichnungen.\n\nQt %2, %3",
    "Linewright %1\n\nDes codes-barres en texte pour leurs polices et en dessins.\n\nQt %2, %3",
    "Linewright %1\n\nバーコードをフォント用のテキストと図にします。\n\nQt %2、%3"};
inline constexpr Phrase kInstallFonts{"&Install Fonts…", "&Schriften installieren…",
                                      "&Installer les polices…", "フォントをインストール(&I)…"};

}  // namespace linewright::phrases
