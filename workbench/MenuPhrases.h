#pragma once

#include "workbench/Language.h"

namespace linewright::phrases {

// What stands in the menus of the window.

inline constexpr Phrase kFileMenu{"&File", "&Datei", "&Fichier", "ファイル(&F)"};
inline constexpr Phrase kQuit{"&Quit", "&Beenden", "&Quitter", "終了(&Q)"};
inline constexpr Phrase kLanguageMenu{"L&anguage", "&Sprache", "L&angue", "言語(&A)"};
inline constexpr Phrase kNoPlugIn{
    "The plug-in could not be started", "Das Zusatzmodul konnte nicht gestartet werden",
    "Le module n’a pas pu démarrer", "プラグインを起動できませんでした"};
inline constexpr Phrase kEditMenu{"&Edit", "&Bearbeiten", "&Édition", "編集(&E)"};
inline constexpr Phrase kViewMenu{"&View", "&Ansicht", "&Affichage", "表示(&V)"};
inline constexpr Phrase kBarcodePage{"Barcode", "Barcode", "Code-barres", "バーコード"};
inline constexpr Phrase kListPage{"List", "Liste", "Liste", "リスト"};

}  // namespace linewright::phrases
