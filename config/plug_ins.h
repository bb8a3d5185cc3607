// Plug-ins: text files that name more files, folders and registry keys. The
// chosen ones are turned into three flat work files, and these into the work
// lists of a run. The main form and the settings form each do this on controls
// of their own and share the files.
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "forms/controls.h"
#include "forms/file_boxes.h"
#include "forms/list_view.h"
#include "platform/machine.h"
#include "services/file_statements.h"
#include "services/registry_layer.h"

namespace tavr {

/// The controls of one form that take part.
struct PlugInControls {
  ListView& View1;
  FileListBox& File1;
  TextBox& Text3;
  TextList& List4;   ///< file paths
  TextList& List5;   ///< folder, mask, subfolder flag in turn
  TextList& List6;   ///< registry lines
  TextList& List7;   ///< work list: files
  TextList& List8;   ///< work list: folders
  TextList& List9;   ///< work list: masks
  TextList& List10;  ///< work list: subfolder flags
  TextList& List11;  ///< work list: registry lines
};

class PlugIns {
 public:
  PlugIns(Machine& machine, FileNumbers& numbers, RegistryLayer& registry, PlugInControls controls)
      : machine_(machine), numbers_(numbers), registry_(registry), controls_(controls) {}

  /// Asks the shell for the Cookies folder (into Text3 and the setting
  /// `cookies`) and lists the definitions of the plug-in folder in View1.
  void listDefinitions();

  /// Is there a file of the selected names, even an empty one?
  bool hasSelection() const;

  /// Ticks every row that a line of that file matches; `ticked` is told its text.
  void restoreTicks(const std::function<void(const std::string& text)>& ticked);

  /// Writes the selection and reads the ticked definitions into plgfile.cln,
  /// plgfoldr.cln and plgreg.cln.
  void Command1();

  /// Reads these three files into the work lists. A missing one leaves those
  /// behind it unread.
  void Command3();

 private:
  void writeSelection();
  void readDefinition(const std::string& name);
  void readLine(const std::string& line, bool& files, bool& registry);
  void addFolder(std::string_view line);
  void writeList(const TextList& list, std::string_view name);
  // False when there is no such file.
  bool readList(std::string_view name, const std::function<void(const std::string& line)>& line);
  void startFile(const std::string& path);

  Machine& machine_;
  FileNumbers& numbers_;
  RegistryLayer& registry_;
  PlugInControls controls_;
};

/// The row of the list, counted from 0, whose text matches the lower-cased name
/// as a pattern, -1 for none: what the interactive finder asks of List6.
int search_found(const TextList& list6, std::string_view name);

}  // namespace tavr
