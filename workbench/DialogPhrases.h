#pragma once

#include "workbench/Language.h"

namespace linewright::phrases {

// What the window says of its own in the plug-in's dialogs.

inline constexpr Phrase kCopyResult{"Co&py Font Text", "Fonttext k&opieren", "Co&pier",
                                    "コピー(&Y)"};
inline constexpr Phrase kNotTaken{"Not taken: %1", "Nicht angenommen: %1", "Refusé : %1",
                                  "入力できません: %1"};
inline constexpr Phrase kTooLong{"At most %1 characters are taken.",
                                 "Höchstens %1 Zeichen werden angenommen.",
                                 "Pas plus de %1 caractères.", "最大 %1 文字です。"};

}  // namespace linewright::phrases
