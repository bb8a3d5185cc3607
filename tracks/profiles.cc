#include "tracks/profiles.h"

#include <vector>

#include "tracks/primitives.h"

namespace tavr {

namespace {

constexpr std::string_view kRoaming = "\\AppData\\Roaming\\Mozilla\\Firefox\\Profiles";
constexpr std::string_view kLocal = "\\AppData\\Local\\Mozilla\\Firefox\\Profiles";
constexpr std::size_t kPlaceLength = 3;  // "{P}"

std::string userProfile(TrackContext& context) {
  return context.machine.environment.get("USERPROFILE");
}

}  // namespace

void forEachProfile(TrackContext& context, const ProfileKey& browser, const ProfileVisitor& visit) {
  context.form.List12.clear();
  grantKey(context, browser.key);
  context.registry.fEnumKey("HKCU", browser.key);
  const std::string user_data = userProfile(context) + std::string(browser.user_data);
  const int count = context.form.List12.count();
  for (int i = 0; i < count; ++i) {
    // One name for all that is looked for in it: a run that starts in a pump may leave
    // the list empty, and an empty name would be the folder of every profile.
    visit(user_data + context.form.List12.at(i));
  }
}

void forEachFirefoxProfile(TrackContext& context, const ProfileVisitor& visit) {
  std::vector<std::string> names;
  context.machine.files.subfolders(userProfile(context) + std::string(kRoaming), names);
  for (const std::string& name : names) visit(name);
}

std::string profileFolder(std::string_view folder, std::string_view profile) {
  return std::string(profile) + std::string(folder.substr(kPlaceLength));
}

std::string firefoxFolder(TrackContext& context, std::string_view folder, std::string_view name) {
  const std::string_view base = folder.starts_with("{L}") ? kLocal : kRoaming;
  return userProfile(context) + std::string(base) + "\\" + std::string(name) +
         std::string(folder.substr(kPlaceLength));
}

}  // namespace tavr
