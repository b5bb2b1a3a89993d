#pragma once

#include <QString>
#include <QStringList>

#include "workbench/TakenBarcode.h"

namespace linewright {

/** A word as a POSIX shell takes it. */
QString ShellWord(const QString& word);

/** The line for a POSIX shell that writes the same bytes into a file. `program` is the command with
 *  the options that come before all others. */
QString ShellLine(const QStringList& program, const TakenBarcode& barcode,
                  const ExportChoice& choice, const QString& file);

}  // namespace linewright
