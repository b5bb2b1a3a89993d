#pragma once

#include <QString>

#include "PMString.h"

namespace linewright {

// The host's texts and Qt's. Either way no character is lost or changed.

QString TextFromHost(const PMString& text);
PMString TextForHost(const QString& text);

/** A caption as it is read aloud: without its mnemonic and the colon at its end. */
QString SpokenText(const QString& caption);

}  // namespace linewright
