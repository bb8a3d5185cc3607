// The main form: its controls and its run members, as the program's procedures
// read and write them. It lives as long as the process. Names are those of the
// controls; the handlers are put in by the engine.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "forms/controls.h"
#include "forms/file_boxes.h"
#include "forms/form.h"
#include "forms/list_view.h"
#include "forms/progress_bar.h"
#include "forms/result_list.h"
#include "platform/machine.h"

namespace tavr {

/// "Scripting.FileSystemObject", as far as deletion works through it: it is
/// there or it is not.
struct FileSystemObject {};

/// Back colours of a title-strip button, at rest and under the mouse.
struct StripButton {
  std::int32_t color = 0;
  std::int32_t hover_color = 0;
};

struct Form1 : Form {
  explicit Form1(Machine& machine)
      : Form("Form1", "Spoorwipe", 960, 640),
        bar1(machine.dialogs),
        Timer2(machine.events, 100),
        File1(machine.files),
        Dir1(machine.files) {
    visible = true;
  }

  // Run mode, set once by the command line.
  bool hasArguments = false;
  int unattended = 0;  // 0 interactive, 1 run and exit, 5 settings dialog only
  int resultMode = 0;  // 1 Erase only, 2 a caller wants the result file
  int parentMode = 0;  // 1 Test, 2 Erase for a parent program
  int hideOnLoad = 0;
  std::string dialog_mode;  // "d": the dialogs end the program when they close

  // Run members.
  double taskrow = 0;
  double trackcount = 0;
  double tracksize = 0;
  int stopflag = 0;
  std::vector<std::string> pendingpairs;
  int pending_count = 0;
  std::optional<FileSystemObject> file_system_object;
  double recycled_items = 0;  // what the recycle bin held at the last look
  bool grant_failed = false;  // outcome of the last access grant

  // The title strip.
  std::int32_t strip_color = 0;
  StripButton chameleonButton9, chameleonButton10, chameleonButton12, chameleonButton13;
  Label Label222;  // the year

  // What a person watches.
  ListView View100;
  ResultList View200;
  std::array<Label, 2> Label1;  // of a run: Label1[0]
  Label Label2, Label4, Label6;
  ProgressBar bar1;
  Picture Gif89a1;
  Button cmd_settings, cmd_option, cmd_plugin, cmd_test, cmd_start, cmd_stop, cmd_view, cmd_clear;
  Button chameleonButton1, chameleonButton2;  // view log, clear log
  Button chameleonButton5, chameleonButton6;  // Erase, Test
  FormTimer Timer2;

  // Hidden controls: variables, triggers and scratch lists.
  TextBox Text2, Text3, Text4, Text5, Text10, Text11, Text12, Text13, Text14, Text15, Text16;
  TextBox txtregcount, txtfilecount, txtfilesize, txtcountfil, txtlang;
  TextList List4, List5, List6, List7, List8, List9, List10, List11;
  TextList List12, List13, List20, List21;
  FileListBox File1;
  DirListBox Dir1;
  ListView View1;
};

}  // namespace tavr
