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

ExitStatus RunProof(Service&, const MergeFiles&, const RowOptions&, const DrawOptions&, Console&) {
    throw Failure("proof is for Linux; this program has no renderer and no scanner");
}

MakeScanned BarcodeScanner(Service&, const std::string&) {
    throw Failure("--verify is for Linux; this program has no renderer and no scanner");
}

}  // namespace linewright
