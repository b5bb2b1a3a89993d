#pragma once

#include <string>

#include "requests/PlainBarcodes.h"
#include "words/Words.h"
#include "workbench/ListModel.h"

namespace linewright {

/** What MakeBarcode says of a row, the short way where there is nothing to say. Throws
 *  RequestFailure. */
RowVerdict VerdictOn(Service& service, PlainBarcodes& plain, const BarcodeWish& wish,
                     Language language);

/** What the plug-in makes of data that its preferences have a say in: something else where they
 *  are others. Throws RequestFailure. */
std::string AnswersByPreferences(Service& service);

}  // namespace linewright
