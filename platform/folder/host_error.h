// The one place where an error of the Linux host becomes the error that Windows
// would have given.
#pragma once

#include "platform/win_error.h"

namespace tavr::folder {

/// The Windows error of an errno value; 31 (a device that does not work) for
/// what has no counterpart.
Status windowsError(int host_error);

}  // namespace tavr::folder
