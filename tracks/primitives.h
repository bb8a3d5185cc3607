// What all track procedures share: the four file-pattern primitives, the key
// tree deletion, and the small steps in which a procedure reports.
#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

#include "tracks/catalogue.h"
#include "tracks/track_context.h"

namespace tavr {

/// Lists the files below the path that match. After a stop one more file is
/// shown and sized, and not counted.
void srch(TrackContext& context, std::string_view path, std::string_view pattern,
          std::string_view label);
/// Lists and deletes; the file at which the user stopped stays.
void srchd(TrackContext& context, std::string_view path, std::string_view pattern,
           std::string_view label);
/// Lists, skipping files on the pending list. After a stop nothing is shown.
void srch2(TrackContext& context, std::string_view path, std::string_view pattern,
           std::string_view label);
/// Lists and deletes, skipping files on the pending list, and queues two empty
/// entries for the pending value per deleted file.
void srchd2(TrackContext& context, std::string_view path, std::string_view pattern,
            std::string_view label);

/// The entry's primitive on a folder with its place put in.
void runEntry(TrackContext& context, const Entry& entry, std::string_view folder);

/// The folder of an entry with a leading %NAME% put in.
std::string expandPlace(TrackContext& context, std::string_view folder);

/// Deletes a key with everything below it; a missing one is left alone.
void fDeleteKeyTree(TrackContext& context, Root root, std::string_view key);

/// Environment references expanded; the text ends in the NUL that the platform
/// wrote behind it.
std::string GetPath(Machine& machine, std::string_view path);

/// One numbered text of the language file in force, "" when it is missing.
std::string LangText(TrackContext& context, std::string_view number);

/// GrantKeyAccess for the user named by the environment.
void grantKey(TrackContext& context, std::string_view key);

/// Adds a row of the table to the results: its braces filled with the values in
/// order, greyed and scrolled to when the table says so.
void showRow(TrackContext& context, const RowForm& row,
             std::initializer_list<std::string_view> values = {});

/// Adds a number to a total that is kept as text.
void addTo(TextBox& total, double number);

/// The row of View100 in progress, bold and dark red in its count.
void rowTailBold(TrackContext& context);
/// The same, and the results scrolled to their end.
void rowTail(TrackContext& context);
/// The count column of the row in progress.
void setCount(TrackContext& context, std::string_view text);

}  // namespace tavr
