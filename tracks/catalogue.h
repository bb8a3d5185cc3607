// The catalogue of tracks: for each kind of trace a procedure cN that cleans
// and a procedure tN that tests. The rows stand in windows.cc,
// internet_explorer.cc, firefox.cc and chromium.cc; this page says what a row
// is. The two sides of a pair are written out side by side and never derived
// from each other: where they differ, they are meant to.
#pragma once

#include <cstdint>
#include <span>
#include <string_view>
#include <variant>

namespace tavr {

struct TrackContext;
struct Procedure;

/// The four file-pattern primitives: "d" deletes, "2" skips what waits on the
/// pending list.
enum class Primitive : std::uint8_t { srch, srch2, srchd, srchd2 };

/// One call of a primitive. The folder begins with a place: %NAME% an
/// environment variable, {P} the profile folder of a Chromium browser, {R} and
/// {L} the roaming and local folder of a Firefox profile; other braces are put
/// in by the procedure itself.
struct Entry {
  Primitive primitive = Primitive::srch;
  std::string_view folder;
  std::string_view pattern;
  std::string_view label;  ///< trailing blanks are part of it
};

/// What a procedure does to a registry key.
enum class KeyAct : std::uint8_t { grant, tree, values, keys, value, read, key };

/// A registry key that an own procedure uses; under HKCU unless the path begins
/// with "HKLM:" or "HKU:". Braces stand for what is only known at run time.
struct KeyUse {
  KeyAct act = KeyAct::grant;
  std::string_view path;
};

/// A row text of an own procedure; braces stand for what is put in, in order.
struct RowForm {
  bool ghosted = false;
  std::string_view text;
};

/// How a procedure closes: the count bold and dark red, the results scrolled to
/// their end. `own`: done inside the procedure, in a place or form of its own.
enum class RowTail : std::uint8_t { none, full, bold, own };

/// A fixed-folder search: the entries, once.
struct FixedFolder {
  bool clears_list12 = false;  ///< empties the list of profiles, and has no use for it
};

/// A Chromium browser whose profiles are the subkeys of its PreferenceMACs key.
struct ProfileKey {
  std::string_view key;        ///< under HKCU
  std::string_view user_data;  ///< below %USERPROFILE%, ends in "\"
};

/// The walk over the folders of Firefox's profile folder.
struct FirefoxProfiles {};

/// A procedure with a function of its own.
using OwnFunction = void (*)(TrackContext& context, const Procedure& self);
struct OwnProcedure {
  OwnFunction run = nullptr;
};

using Shape = std::variant<FixedFolder, ProfileKey, FirefoxProfiles, OwnProcedure>;

struct Procedure {
  std::string_view name;   ///< its public name, "c24"
  std::string_view track;  ///< what it is about, for people
  Shape shape;
  RowTail tail = RowTail::none;
  std::span<const Entry> searches;
  std::span<const KeyUse> keys;
  std::span<const RowForm> rows;
};

std::span<const Procedure> windowsTracks();
std::span<const Procedure> internetExplorerTracks();
std::span<const Procedure> firefoxTracks();
std::span<const Procedure> chromiumTracks();

/// What a table promises: unique names, and search folders that begin with a
/// place and do not end in "\" (one does, as the path is made of two texts).
constexpr bool wellFormed(std::span<const Procedure> table) {
  for (std::size_t i = 0; i < table.size(); ++i) {
    for (std::size_t j = 0; j < i; ++j) {
      if (table[i].name == table[j].name) return false;
    }
    for (const Entry& entry : table[i].searches) {
      const bool place = entry.folder.starts_with('%') || entry.folder.starts_with('{');
      const bool open_end = entry.folder.ends_with('\\') && entry.folder != "{Cache}\\";
      if (!place || open_end || entry.pattern.empty() || entry.label.empty()) return false;
    }
  }
  return true;
}

/// The procedure of that name; null for a name that is not in the catalogue.
const Procedure* findProcedure(std::string_view name);

/// Calls the procedure of that name, as a run does. Raises 5 for a name that is
/// not in the catalogue.
void callProcedure(TrackContext& context, std::string_view name);

}  // namespace tavr
