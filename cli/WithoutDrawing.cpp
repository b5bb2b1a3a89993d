#include "cli/DrawCommand.h"
#include "cli/ScannedBarcode.h"
#include "merge/Failure.h"

// In place of what draws and reads, where there are no libraries for it.

namespace linewright {

ExitStatus RunDraw(Service&, const DrawOptions&, Console&) {
    throw Failure("draw is for Linux; this program has no renderer");
}

ExitStatus RunVerify(Service&, const DrawOptions&, Console&) {
    throw Failure("verify is for Linux; this program has no renderer and no scanner");
}

ExitStatus RunProof(Service&, const BatchFiles&, const BatchOptions&, const DrawOptions&,
                    Console&) {
    throw Failure("proof is for Linux; this program has no renderer and no scanner");
}

std::function<ScannedBarcode(const BarcodeWish&)> BarcodeScanner(Service&, const std::string&) {
    throw Failure("--verify is for Linux; this program has no renderer and no scanner");
}

}  // namespace linewright
