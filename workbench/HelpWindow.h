#pragma once

#include <QDialog>

namespace linewright {

/** How the program is used, in a locale; deletes itself when it is closed. */
class HelpWindow final : public QDialog {
  public:
    HelpWindow(const QString& locale, QWidget* parent);
};

}  // namespace linewright
