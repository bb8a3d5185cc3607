// Windows attributes and times of a file kept on Linux. Read-only is the missing
// owner write bit; hidden and system are the hexadecimal text of the extended
// attribute user.DOSATTRIB, where file servers and Wine keep them.
#pragma once

#include <sys/stat.h>

#include <cstdint>

#include "platform/win_error.h"

namespace tavr::folder {

/// What statx must be asked for so that the functions below have their answers.
inline constexpr unsigned kWantedFacts = STATX_BASIC_STATS | STATX_BTIME;

/// Directory, archive and read-only, from what statx said.
std::uint32_t modeAttributes(const struct statx& facts);

/// Hidden and system of the entry `name` of the open directory; none where they
/// cannot be read. Links are not followed.
std::uint32_t hiddenAndSystem(int directory, const char* name);

/// Sets or clears read-only, hidden and system, and writes only what changes.
/// `facts` are the entry's own. 5: something would change and the file has another
/// name on the host; 50: the host file system cannot keep them.
Status setDosAttributes(int directory, const char* name, const struct statx& facts,
                        std::uint32_t attributes);

/// A FILETIME: 100 ns since 1601-01-01 UTC; 0 for anything earlier.
std::uint64_t fileTime(const struct statx_timestamp& time);

/// The creation time, or the last-write time where the host keeps none.
std::uint64_t creationTime(const struct statx& facts);

}  // namespace tavr::folder
