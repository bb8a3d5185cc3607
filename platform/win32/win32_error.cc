#include "platform/win32/win32_error.h"

#include <windows.h>

namespace tavr::win32 {

Status lastStatus(Status unknown) {
  const DWORD error = GetLastError();
  // A call that failed must not look like one that did not.
  return error == ERROR_SUCCESS ? unknown : error;
}

Status fileStatus(unsigned long error) {
  switch (error) {
    case ERROR_NO_MORE_FILES:
      return kFileNotFound;
    // Drives, shares and paths that are not there.
    case ERROR_INVALID_DRIVE:
    case ERROR_NOT_READY:
    case ERROR_BAD_NETPATH:
    case ERROR_BAD_NET_NAME:
    case ERROR_BAD_PATHNAME:
    case ERROR_FILENAME_EXCED_RANGE:
    case ERROR_CANT_RESOLVE_FILENAME:
      return kPathNotFound;
    case ERROR_WRITE_PROTECT:
    case ERROR_NETWORK_ACCESS_DENIED:
    case ERROR_CANNOT_MAKE:
    case ERROR_DELETE_PENDING:
    case ERROR_PRIVILEGE_NOT_HELD:
      return kAccessDenied;
    case ERROR_LOCK_VIOLATION:
    case ERROR_USER_MAPPED_FILE:
      return kSharingViolation;
    case ERROR_HANDLE_DISK_FULL:
      return kDiskFull;
    default:
      return error;
  }
}

Status lastFileStatus() { return fileStatus(lastStatus()); }

Status resultStatus(long result) {
  if (SUCCEEDED(result)) return kSuccess;
  const auto code = static_cast<Status>(HRESULT_CODE(result));
  return HRESULT_FACILITY(result) == FACILITY_WIN32 && code != 0 ? code : kInvalidParameter;
}

}  // namespace tavr::win32
