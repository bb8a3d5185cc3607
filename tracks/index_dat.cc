#include "tracks/index_dat.h"

#include <string>

#include "basic/number.h"
#include "basic/resume_next.h"
#include "basic/text.h"
#include "services/cookies_folder.h"
#include "services/file_properties.h"
#include "services/file_statements.h"
#include "services/settings_keys.h"
#include "tracks/primitives.h"

namespace tavr::index_dat {

namespace {

constexpr std::uint32_t kArchive = 32;
constexpr int kPathNotFoundError = 76;

std::string shellFolder(TrackContext& context, std::string_view name) {
  std::string folder;
  context.registry.fGetString(Root::kCurrentUser, kShellFolders, name, folder);
  return folder;
}

// The cookie folder: as the registry names it, or, where it cannot be entered,
// as the shell reports it.
std::string findFolder(TrackContext& context) {
  ResumeNext on;
  std::string folder = shellFolder(context, "Cookies");
  on.next([&] { ChDir(context.machine, folder); });
  if (on.number() == kPathNotFoundError) {
    if (const auto reported = cookiesFolder(context.machine)) folder = *reported;
  }
  return folder;
}

void reportFile(TrackContext& context, const Procedure& self, const std::string& file) {
  ResumeNext on;
  on.next([&] { SetAttr(context.machine, file, kArchive); });
  // A row even when there is no such file.
  showRow(context, self.rows[0]);
  clsFileProp properties(context.machine);
  properties.FindFileInfo(Trim(file));
  addTo(context.form.txtfilesize, Val(properties.ByteSize()));
}

// Deletion works through the form's file-system object, which is not made here:
// the file stays behind, overwritten, unless an earlier stop left the object.
void overwrite(TrackContext& context, const std::string& file) {
  const std::string value = context.registry.setting(settings::kOptionsKeyOfCache, "3");
  if (Val(value) == 0) {
    context.deletion.fOverwriteFile(file);
    context.deletion.DeleteAFile(file);
  }
  if (Val(value) == 1) {
    const std::string times = context.registry.setting(settings::kMainKeyOfCache, "secure_value");
    double counter = 1;
    do {
      context.machine.events.doEvents();
      context.deletion.fOverwriteFile(file);
      counter += 1;
    } while (counter <= Val(times));
    context.deletion.DeleteAFile(file);
  }
}

void searchFolders(TrackContext& context, const Procedure& self, const std::string& folder) {
  const std::size_t cut = folder.rfind('\\');
  const std::string parent = cut == std::string::npos ? "" : folder.substr(0, cut);
  runEntry(context, self.searches[0], parent + "\\Local Settings\\history");
  runEntry(context, self.searches[1], shellFolder(context, "Local Settings") + "\\history");
  runEntry(context, self.searches[2], shellFolder(context, "Cache") + "\\");
}

}  // namespace

void c9(TrackContext& context, const Procedure& self) {
  const std::string folder = findFolder(context);
  const std::string file = folder + "\\index.dat";
  reportFile(context, self, file);
  overwrite(context, file);
  searchFolders(context, self, folder);
}

void t9(TrackContext& context, const Procedure& self) {
  const std::string folder = findFolder(context);
  reportFile(context, self, folder + "\\index.dat");
  searchFolders(context, self, folder);
  setCount(context, "1");
}

}  // namespace tavr::index_dat
