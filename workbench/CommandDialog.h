#pragma once

#include <QDialog>

namespace linewright {

/** Shows a line for the shell, to be copied. */
class CommandDialog final : public QDialog {
  public:
    CommandDialog(const QString& line, const QString& locale, QWidget* parent);
};

}  // namespace linewright
