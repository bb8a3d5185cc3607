// The track of the temporary internet files, the one track that works from a
// list: local files in List20, their URLs in List21. Its rows stand in
// internet_explorer.cc.
#pragma once

#include "tracks/catalogue.h"

namespace tavr::temporary_files {

inline constexpr KeyUse kC8Keys[] = {
    {KeyAct::read, "HKLM:software\\Tavrwork\\tavr wipe"},
    {KeyAct::read, "HKLM:software\\Tavrwork\\tavr wipe\\option\\option"}};
inline constexpr RowForm kC8Rows[] = {{true, "{029} = {name}  <OK>"}};

// "secure_clean" is read one level deeper, where nothing writes it.
inline constexpr KeyUse kT8Keys[] = {
    {KeyAct::read, "HKLM:software\\Tavrwork\\tavr wipe"},
    {KeyAct::read, "HKLM:software\\Tavrwork\\tavr wipe\\Tavr wipe"}};
inline constexpr RowForm kT8Rows[] = {{true, "IE cache temp files = {name}  <OK>"}};

void c8(TrackContext& context, const Procedure& self);
void t8(TrackContext& context, const Procedure& self);

}  // namespace tavr::temporary_files
