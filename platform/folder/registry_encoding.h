// How registry.reg is written down: its bytes to text and back. Text is UTF-8;
// half a pair of surrogates, which names on real machines hold, is kept as the
// three bytes that its number gives.
#pragma once

#include <string>
#include <string_view>

namespace tavr::folder {

struct RegistryEncoding {
  bool utf16 = false;   ///< UTF-16LE with its byte order mark; otherwise UTF-8
  bool marked = false;  ///< UTF-8 with a byte order mark
  bool crlf = false;    ///< lines end in CR LF; otherwise in LF
};

/// The text of the file's bytes; `encoding` tells how they held it. Raises
/// MalformedFile for a NUL and for bytes that are not in the encoding.
std::string decodeRegistry(std::string_view file, std::string bytes, RegistryEncoding& encoding);

/// The bytes of a text, byte order mark included. Line ends stay as they are.
std::string encodeRegistry(std::string text, const RegistryEncoding& encoding);

/// The UTF-16 units of a text as bytes, low byte first.
std::string utf16Bytes(std::string_view text);
/// The text of such bytes; a last odd byte is left out.
std::string fromUtf16Bytes(std::string_view bytes);

}  // namespace tavr::folder
