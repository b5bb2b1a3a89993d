#pragma once

#include <QPrinter>
#include <QString>
#include <vector>

#include "workbench/RowTakers.h"

namespace linewright {

/** What is printed of a list. */
struct ListPages {
    std::vector<DrawnRow> rows{};
    /** A line each, behind the barcodes. */
    QStringList refused{};
    /** What stands above the refused ones; %1 is their number. */
    QString refusedTitle{};
    /** What is said of a row that does not fit on a page: %1 its number, %2 its data. */
    QString tooLarge{};
};

/** Prints barcodes at their sizes, bars on the printer's dots, each with its number and data above
 *  it; rows without a barcode are listed at the end. */
void PrintList(QPrinter& printer, const ListPages& pages);

}  // namespace linewright
