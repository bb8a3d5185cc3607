// The track of the Windows searching history: the logs of the search index and
// the values below the search box's key. Its rows stand in windows.cc.
#pragma once

#include "tracks/catalogue.h"

namespace tavr::searching_history {

/// The search box's key, under HKCU.
inline constexpr std::string_view kSearch =
    "Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\WordWheelQuery";

inline constexpr Entry kC95Searches[] = {
    {Primitive::srchd2, "%PROGRAMDATA%\\Microsoft\\Search\\Data\\Applications\\Windows", "*.log",
     "Windows Searching History : "}};
inline constexpr Entry kT95Searches[] = {
    {Primitive::srch2, "%PROGRAMDATA%\\Microsoft\\Search\\Data\\Applications\\Windows", "*.log",
     "Windows Searching History : "}};
inline constexpr std::string_view kSearchSubkey =
    "Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\WordWheelQuery\\{subkey}";
inline constexpr KeyUse kC95Keys[] = {
    {KeyAct::grant, kSearch},      {KeyAct::keys, kSearch},        {KeyAct::values, kSearchSubkey},
    {KeyAct::read, kSearchSubkey}, {KeyAct::value, kSearchSubkey}, {KeyAct::values, kSearch},
    {KeyAct::value, kSearch}};
inline constexpr KeyUse kT95Keys[] = {{KeyAct::grant, kSearch},
                                      {KeyAct::keys, kSearch},
                                      {KeyAct::values, kSearchSubkey},
                                      {KeyAct::read, kSearchSubkey},
                                      {KeyAct::values, kSearch}};
inline constexpr RowForm kC95Rows[] = {{true, ": {data}  <OK>"}};

void c95(TrackContext& context, const Procedure& self);
void t95(TrackContext& context, const Procedure& self);

}  // namespace tavr::searching_history
