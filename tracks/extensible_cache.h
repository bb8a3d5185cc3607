// The track of Internet Explorer's extensible cache keys, which no run calls.
// Its rows stand in internet_explorer.cc.
#pragma once

#include "tracks/catalogue.h"

namespace tavr::extensible_cache {

inline constexpr KeyUse kC11Keys[] = {
    {KeyAct::keys,
     "Software\\Microsoft\\Windows\\CurrentVersion\\Internet Settings\\6.0\\Cache\\Extensible "
     "Cache"},
    {KeyAct::keys,
     "Software\\Microsoft\\Windows\\CurrentVersion\\Internet Settings\\4.0\\Cache\\Extensible "
     "Cache"},
    {KeyAct::keys,
     "Software\\Microsoft\\Windows\\CurrentVersion\\Internet Settings\\5.0\\Cache\\Extensible "
     "Cache"},
    {KeyAct::tree,
     "Software\\Microsoft\\Windows\\CurrentVersion\\Internet "
     "Settings\\{version}\\Cache\\Extensible Cache\\{subkey}"},
    {KeyAct::read, "HKLM:Network\\Logon"},
    {KeyAct::keys,
     "HKU:{user}\\Software\\Microsoft\\Windows\\CurrentVersion\\Internet "
     "Settings\\6.0\\Cache\\Extensible Cache"},
    {KeyAct::keys,
     "HKU:{user}\\Software\\Microsoft\\Windows\\CurrentVersion\\Internet "
     "Settings\\4.0\\Cache\\Extensible Cache"},
    {KeyAct::keys,
     "HKU:{user}\\Software\\Microsoft\\Windows\\CurrentVersion\\Internet "
     "Settings\\5.0\\Cache\\Extensible Cache"},
    {KeyAct::tree,
     "{user}\\Software\\Microsoft\\Windows\\CurrentVersion\\Internet "
     "Settings\\{version}\\Cache\\Extensible Cache\\{subkey}"},
};
inline constexpr KeyUse kT11Keys[] = {
    {KeyAct::keys,
     "Software\\Microsoft\\Windows\\CurrentVersion\\Internet Settings\\6.0\\Cache\\Extensible "
     "Cache"},
    {KeyAct::keys,
     "Software\\Microsoft\\Windows\\CurrentVersion\\Internet Settings\\4.0\\Cache\\Extensible "
     "Cache"},
    {KeyAct::keys,
     "Software\\Microsoft\\Windows\\CurrentVersion\\Internet Settings\\5.0\\Cache\\Extensible "
     "Cache"},
};
inline constexpr RowForm kHistoryRows[] = {
    {false, "Cleaning Internet History value: {name}  <OK>"}};

void c11(TrackContext& context, const Procedure& self);
void t11(TrackContext& context, const Procedure& self);

}  // namespace tavr::extensible_cache
