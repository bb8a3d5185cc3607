// The track of the open and save dialogs, which is long enough for a file of
// its own. Its rows stand in windows.cc.
#pragma once

#include "tracks/catalogue.h"

namespace tavr::dialogs {

// Key paths, under HKCU.
inline constexpr std::string_view kOpenSave =
    "Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\ComDlg32\\OpenSaveMRU";
inline constexpr std::string_view kOpenSaveNt =
    "Software\\Microsoft\\Windows nt\\CurrentVersion\\Explorer\\ComDlg32\\OpenSaveMRU";
inline constexpr std::string_view kLastVisited =
    "Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\ComDlg32\\LastVisitedPidlMRU";
inline constexpr std::string_view kLastVisitedLegacy =
    "Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\ComDlg32\\LastVisitedPidlMRULegacy";
inline constexpr std::string_view kOpenSavePidl =
    "Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\ComDlg32\\OpenSavePidlMRU";
inline constexpr std::string_view kOpenSaveSubkey =
    "Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\ComDlg32\\OpenSaveMRU\\{subkey}";
inline constexpr std::string_view kLastVisitedLegacySubkey =
    "Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\ComDlg32\\"
    "LastVisitedPidlMRULegacy\\{subkey}";
inline constexpr std::string_view kOpenSavePidlSubkey =
    "Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\ComDlg32\\OpenSavePidlMRU\\{subkey}";

inline constexpr KeyUse kC5Keys[] = {
    {KeyAct::grant, kOpenSave},
    // Values directly under the keys.
    {KeyAct::values, kLastVisited},
    {KeyAct::values, kOpenSave},
    {KeyAct::value, kOpenSave},
    {KeyAct::value, kLastVisited},
    // Subkeys, one per file extension.
    {KeyAct::keys, kLastVisitedLegacy},
    {KeyAct::keys, kOpenSave},
    {KeyAct::values, kLastVisitedLegacySubkey},
    {KeyAct::values, kOpenSaveSubkey},
    {KeyAct::read, kLastVisitedLegacySubkey},
    {KeyAct::read, kOpenSaveSubkey},
    {KeyAct::value, kOpenSaveSubkey},
    {KeyAct::value, kLastVisitedLegacySubkey},
    // The same with the newer key.
    {KeyAct::keys, kOpenSavePidl},
    {KeyAct::values, kOpenSavePidlSubkey},
    {KeyAct::read, kOpenSavePidlSubkey},
    {KeyAct::value, kOpenSavePidlSubkey},
};
inline constexpr RowForm kC5Rows[] = {{true, "{035} {name} <OK>"}, {true, "{175}: {data}  <OK>"}};

// The test reads other keys than the cleaning.
inline constexpr KeyUse kT5Keys[] = {
    {KeyAct::values, kOpenSave}, {KeyAct::keys, kOpenSavePidl},     {KeyAct::keys, kOpenSave},
    {KeyAct::keys, kOpenSaveNt}, {KeyAct::values, kOpenSaveSubkey},
};
inline constexpr RowForm kT5Rows[] = {{true, "clean open save dialogs {name} <OK>"},
                                      {true, "clean open save dialogs: {name}  <OK>"}};

void c5(TrackContext& context, const Procedure& self);
void t5(TrackContext& context, const Procedure& self);

}  // namespace tavr::dialogs
