// The Windows error numbers that cross the platform seam, under their Windows
// names. A Status is one of these; 0 is success.
#pragma once

#include <cstdint>

namespace tavr {

using Status = std::uint32_t;

inline constexpr Status kSuccess = 0;
inline constexpr Status kFileNotFound = 2;
inline constexpr Status kPathNotFound = 3;
inline constexpr Status kAccessDenied = 5;
inline constexpr Status kInvalidHandle = 6;
inline constexpr Status kNoMoreFiles = 18;
inline constexpr Status kSharingViolation = 32;
inline constexpr Status kNotSupported = 50;
inline constexpr Status kFileExists = 80;
inline constexpr Status kInvalidParameter = 87;
inline constexpr Status kDiskFull = 112;
inline constexpr Status kInvalidName = 123;
inline constexpr Status kBadPathname = 161;
inline constexpr Status kMoreData = 234;
inline constexpr Status kNoMoreItems = 259;
inline constexpr Status kDirectory = 267;
inline constexpr Status kKeyDeleted = 1018;
inline constexpr Status kNoneMapped = 1332;

}  // namespace tavr
