// The ways in which the program removes a file: the plain delete, the pending
// rename value that Windows works off at its next start, and the overwriting of
// cache files. None reports a failure; a file that cannot go stays.
#pragma once

#include <string>
#include <string_view>

#include "basic/resume_next.h"
#include "forms/form1.h"
#include "platform/machine.h"
#include "services/file_statements.h"

namespace tavr {

class Deletion {
 public:
  Deletion(Machine& machine, Form1& form, FileNumbers& numbers)
      : machine_(machine), form_(form), numbers_(numbers) {}

  /// Deletes through the form's file-system object, without force: a read-only
  /// file stays. Without that object nothing is deleted. Never overwrites.
  void DeleteAFile(std::string_view path);

  /// Adds the current user with full rights to the file; a path in a recycle
  /// bin keeps its rights. Trims the path in place.
  void changepermission(std::string& path);

  /// Kept as it is: true also for a file that is gone and for a hidden one.
  bool fFileRemains(std::string_view path);

  /// Rebuilds Text16, the lower-cased list of what waits for the next start of
  /// Windows.
  void pndtxt();

  /// Replaces the whole pending value by pendingpairs. Entries of other
  /// programs are lost: they were shown by pndtxt before.
  void savepending();

  /// Queues two more entries for the pending value; `entry` gives the first
  /// one's text and may fail, which leaves it empty.
  template <class Entry>
  void queuePending(Entry&& entry);

  /// Eleven passes of "#" over the file, which grows to a whole number of
  /// blocks of 8192 bytes and one more. A missing file is made by it.
  void fOverwriteFile(std::string_view path);

 private:
  void growPending();
  void grantSessionManager();

  Machine& machine_;
  Form1& form_;
  FileNumbers& numbers_;
};

template <class Entry>
void Deletion::queuePending(Entry&& entry) {
  ResumeNext on;
  growPending();
  on.next([&] { form_.pendingpairs[static_cast<std::size_t>(form_.pending_count)] = entry(); });
  ++form_.pending_count;
  growPending();
  form_.pendingpairs[static_cast<std::size_t>(form_.pending_count)].clear();
  ++form_.pending_count;
}

}  // namespace tavr
