// The track of the index.dat files. Its rows stand in internet_explorer.cc.
#pragma once

#include "tracks/catalogue.h"

namespace tavr::index_dat {

inline constexpr std::string_view kShellFolders =
    "Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Shell Folders";

inline constexpr Entry kC9Searches[] = {
    {Primitive::srchd, "{parent}\\Local Settings\\history", "index.dat", "index.dat "},
    {Primitive::srchd, "{Local Settings}\\history", "index.dat", "index.dat "},
    {Primitive::srchd, "{Cache}\\", "index.dat", "index.dat "},
};
inline constexpr Entry kT9Searches[] = {
    {Primitive::srch, "{parent}\\Local Settings\\history", "index.dat", "index.dat "},
    {Primitive::srch, "{Local Settings}\\history", "index.dat", "index.dat "},
    {Primitive::srch, "{Cache}\\", "index.dat", "index.dat "},
};
inline constexpr KeyUse kC9Keys[] = {
    {KeyAct::read, kShellFolders},
    {KeyAct::read, "HKLM:software\\Tavrwork\\tavr wipe\\option\\option"},
    {KeyAct::read, "HKLM:software\\Tavrwork\\tavr wipe"}};
inline constexpr KeyUse kT9Keys[] = {{KeyAct::read, kShellFolders}};
inline constexpr RowForm kRows[] = {{true, "Index.dat  <OK>"}};

void c9(TrackContext& context, const Procedure& self);
void t9(TrackContext& context, const Procedure& self);

}  // namespace tavr::index_dat
