#pragma once

#include <QSettings>
#include <QVariant>

namespace linewright {

/** Stores a value unless it is stored already: each one that is stored writes the file anew. */
inline void Keep(QSettings& settings, const QString& key, const QVariant& value) {
    if (settings.value(key) != value) settings.setValue(key, value);
}

}  // namespace linewright
