// The operations that [fault] of machine.ini may name: every one that a part of
// the machine asks its faults about. A name that is missing here is refused; it
// would never fail, and a test would take that for a pass.
#pragma once

#include <string_view>

namespace tavr::folder {

// clang-format off
inline constexpr std::string_view kFaultOperations[] = {
    // files
    "FindFirstFile", "GetFileAttributes", "SetFileAttributes", "DeleteFile", "CreateFile",
    "ReadFile", "WriteFile", "CopyFile", "SetCurrentDirectory",
    // registry
    "RegOpenKeyEx", "RegCreateKeyEx", "RegEnumKey", "RegEnumValue", "RegQueryValueEx",
    "RegSetValueEx", "RegDeleteKey", "RegDeleteValue",
    // WMI: both bindings, the registry provider's methods, the query for processes
    "GetObject", "GetExpandedStringValue", "GetMultiStringValue", "SetMultiStringValue",
    "CreateKey", "ExecQuery",
    // processes
    "Process32First", "OpenProcess", "TerminateProcess",
    // URL cache
    "FindFirstUrlCacheEntry", "FindNextUrlCacheEntry", "DeleteUrlCacheEntry",
    // shell
    "SHQueryRecycleBin", "SHEmptyRecycleBin", "SHGetSpecialFolderLocation", "ShellExecute",
    "CreateProcess", "HtmlHelp",
    // event log, link to the parent program
    "ReportEvent", "CreateFileMapping", "MapViewOfFile", "FindWindow",
    // desktop
    "RegisterHotKey",
};
// clang-format on

}  // namespace tavr::folder
