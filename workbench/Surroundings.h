#pragma once

#include <QStringList>
#include <string>

namespace linewright {

/** What a page has to know of where the program runs. */
struct Surroundings {
    /** The folder of the barcode fonts, UTF-8. */
    std::string fonts;
    /** The command for a shell, with what it has to be told to do the same. */
    QStringList command;
};

}  // namespace linewright
