// What the fuzz targets share: a check that ends the run with its reason, and
// an input taken apart at its NULs.
#pragma once

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string_view>

namespace tavr::fuzz {

/// Ends the process, which the fuzzer takes for a find, unless `holds`.
inline void require(bool holds, const char* what) {
  if (holds) return;
  std::fprintf(stderr, "does not hold: %s\n", what);
  std::abort();
}

inline std::string_view asText(const std::uint8_t* data, std::size_t size) {
  return {reinterpret_cast<const char*>(data), size};
}

/// The part up to the next NUL, taken off `input`; "" when nothing is left.
inline std::string_view takePart(std::string_view& input) {
  const std::size_t end = std::min(input.find('\0'), input.size());
  const std::string_view part = input.substr(0, end);
  input.remove_prefix(std::min(end + 1, input.size()));
  return part;
}

}  // namespace tavr::fuzz
