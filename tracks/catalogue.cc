#include "tracks/catalogue.h"

#include "basic/resume_next.h"
#include "tracks/primitives.h"
#include "tracks/profiles.h"

namespace tavr {

namespace {

template <class... Functions>
struct Overloaded : Functions... {
  using Functions::operator()...;
};
template <class... Functions>
Overloaded(Functions...) -> Overloaded<Functions...>;  // clang deduces it only when told

void runShape(TrackContext& context, const Procedure& procedure) {
  std::visit(Overloaded{
                 [&](const FixedFolder& folder) {
                   if (folder.clears_list12) context.form.List12.clear();
                   for (const Entry& entry : procedure.searches) {
                     runEntry(context, entry, expandPlace(context, entry.folder));
                   }
                 },
                 [&](const ProfileKey& browser) {
                   forEachProfile(context, browser, [&](const std::string& profile) {
                     for (const Entry& entry : procedure.searches) {
                       runEntry(context, entry, profileFolder(entry.folder, profile));
                     }
                   });
                 },
                 [&](const FirefoxProfiles&) {
                   forEachFirefoxProfile(context, [&](const std::string& name) {
                     for (const Entry& entry : procedure.searches) {
                       runEntry(context, entry, firefoxFolder(context, entry.folder, name));
                     }
                   });
                 },
                 [&](const OwnProcedure& own) { own.run(context, procedure); },
             },
             procedure.shape);
}

}  // namespace

const Procedure* findProcedure(std::string_view name) {
  for (const auto tracks :
       {windowsTracks(), internetExplorerTracks(), firefoxTracks(), chromiumTracks()}) {
    for (const Procedure& procedure : tracks) {
      if (procedure.name == name) return &procedure;
    }
  }
  return nullptr;
}

void callProcedure(TrackContext& context, std::string_view name) {
  const Procedure* const procedure = findProcedure(name);
  if (procedure == nullptr) throw RuntimeError{kErrInvalidCall, "Invalid procedure call"};
  runShape(context, *procedure);
  if (procedure->tail == RowTail::full) rowTail(context);
  if (procedure->tail == RowTail::bold) rowTailBold(context);
}

}  // namespace tavr
