#pragma once

#include <QString>
#include <optional>
#include <string>

#include "render/Export.h"
#include "requests/DrawnBarcode.h"

namespace linewright {

/** How a barcode becomes a file. */
struct ExportChoice {
    FileFormat format = FileFormat::kPdf;
    /** Of a picture of a drawing that has no resolution of its own. */
    int dotsPerInch = 300;
    /** As the command writes it: "black", "cmyk:C,M,Y,K", or the name of an ink. */
    QString ink = QStringLiteral("black");
    bool isGrey = false;
};

/** A barcode that was drawn, with all that it was made from. */
struct TakenBarcode {
    BarcodeWish wish;
    DrawingWish drawing;
    DrawnBarcode drawn;

    /** The content of a file. Throws DrawingFailure; an ink that is none is one too. */
    std::string Content(const ExportChoice& choice) const;
    /** A name for its file, without an ending. */
    QString FileName() const;
};

bool IsPicture(FileFormat format);
/** Whether a file of the format can have another ink than black. */
bool HasInks(FileFormat format);
/** The ending of a file's name, "pdf". */
QString EndingOf(FileFormat format);
/** How many pixels a module has in a picture near to a resolution, in whole numbers that the bars
 *  can have; none where the drawing's own resolution says. */
std::optional<int> PixelsNear(const BarcodeDrawing& drawing, int dotsPerInch);

}  // namespace linewright
