#include "platform/folder/host_error.h"

#include <cerrno>

namespace tavr::folder {

namespace {

constexpr Status kTooManyOpenFiles = 4;
constexpr Status kNotEnoughMemory = 8;
constexpr Status kGeneralFailure = 31;

}  // namespace

Status windowsError(int host_error) {
  switch (host_error) {
    case 0:
      return kSuccess;
    case ENOENT:
      return kFileNotFound;
    case ENOTDIR:
    case ELOOP:
    case ENAMETOOLONG:
    case ENXIO:
    case ENODEV:
      return kPathNotFound;
    case EACCES:
    case EPERM:
    case EROFS:
    case EISDIR:
    case ENOTEMPTY:
      return kAccessDenied;
    case EBUSY:
    case ETXTBSY:
      return kSharingViolation;
    case EBADF:
      return kInvalidHandle;
    case EEXIST:
      return kFileExists;
    case ENOSPC:
    case EDQUOT:
    case EFBIG:
      return kDiskFull;
    case EINVAL:
    case EOVERFLOW:
      return kInvalidParameter;
    case ENOTSUP:
      return kNotSupported;
    case EMFILE:
    case ENFILE:
      return kTooManyOpenFiles;
    case ENOMEM:
      return kNotEnoughMemory;
    default:
      return kGeneralFailure;
  }
}

}  // namespace tavr::folder
