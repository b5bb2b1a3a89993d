#include "cli/Modules.h"

namespace linewright {

// The scanners, for modules that do not bring them.

Reading ReadWithZxing(const GreyRaster& picture, const ScannerTask& task) {
    return Opened<ScannersModule>().zxing(picture, task);
}

Reading ReadWithZbar(const GreyRaster& picture, const ScannerTask& task, ZbarView view) {
    return Opened<ScannersModule>().zbar(picture, task, view);
}

}  // namespace linewright
