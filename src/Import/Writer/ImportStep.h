#pragma once

#include <functional>

namespace nsImport {

/// What happens to an import, in this order. Some are left out.
enum eImportStep_t {
    stepReference, ///< the image of the old tool is read
    stepRead,      ///< the sources, or the image that takes their place
    stepConvert,
    stepCheck, ///< the result is assembled in memory
    stepCompare,
    eImportStepCount, ///< number of steps, not a step
};

/// Asked before each step. @return false: there is to be no result
using ImportWatch = std::function<bool(eImportStep_t)>;

} // namespace nsImport
