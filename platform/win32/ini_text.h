// The text of INI files. The profile services of Windows read and write them in
// the system's code page; the files of the program are in UTF-8. Where the page
// is another one, before Windows 10 1903 and under Wine, a text of UTF-8 comes out
// of the services as the page's reading of its bytes.
#pragma once

#include <string>
#include <string_view>

namespace tavr::win32 {

/// What a service gave, as UTF-8: the bytes that it has read, if they are such a
/// text and the page shows each of them; the service's text otherwise.
std::string fromIniText(std::wstring_view text, unsigned page);

/// What a service is to be given for the bytes of this text to come into the file,
/// or to be found there: the page's reading of them, where the page has one that
/// leads back.
std::wstring toIniText(std::string_view text, unsigned page);

}  // namespace tavr::win32
