#pragma once

#include <QIcon>

namespace linewright {

/** The program's icon, in the sizes that window systems ask for. */
QIcon ProgramIcon();

}  // namespace linewright
