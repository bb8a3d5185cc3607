// The two ways of finding browser profiles.
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "tracks/catalogue.h"
#include "tracks/track_context.h"

namespace tavr {

using ProfileVisitor = std::function<void(const std::string& profile)>;

/// Chromium family: grants access to the browser's key, lists its subkeys in
/// List12, and visits the folder of each. A folder without a subkey is not
/// visited; a missing key visits nothing.
void forEachProfile(TrackContext& context, const ProfileKey& browser, const ProfileVisitor& visit);

/// Visits the name of each folder in Firefox's roaming profile folder. A
/// profile that exists only under Local is not visited.
void forEachFirefoxProfile(TrackContext& context, const ProfileVisitor& visit);

/// An entry's folder with {P} put in.
std::string profileFolder(std::string_view folder, std::string_view profile);

/// An entry's folder with {R} or {L} put in, for the profile of that name.
std::string firefoxFolder(TrackContext& context, std::string_view folder, std::string_view name);

}  // namespace tavr
