#pragma once

#include <QString>
#include <vector>

#include "requests/Service.h"
#include "types/BarcodeType.h"

namespace linewright {

/** What people read of a type: all of it the plug-in's words, in its locale. */
struct TypeTexts {
    const BarcodeType* type = nullptr;
    QString name;
    /** One line on what it is for. */
    QString usage;
    /** What may be typed. */
    QString takes;
    QString sample;
};

/** All types in the plug-in's order. */
std::vector<TypeTexts> TextsOfTypes(Service& service);

}  // namespace linewright
