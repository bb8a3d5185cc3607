// The errors of Windows as the numbers that cross the platform seam.
#pragma once

#include "platform/win_error.h"

namespace tavr::win32 {

/// The error of the calling thread's last call, which failed: never 0, whatever
/// that call has left. `unknown` is the number where it left none.
Status lastStatus(Status unknown = kInvalidParameter);

/// The number for an error of a call on files: errors that say the same in other
/// words, of drives, shares and media, are one number.
Status fileStatus(unsigned long error);
/// That of the calling thread's last call, which failed.
Status lastFileStatus();

/// The number for a result of COM or the shell; 0 for every success.
Status resultStatus(long result);

}  // namespace tavr::win32
