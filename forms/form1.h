// The main form: its controls and its run members, as the program's procedures
// read and write them. It lives as long as the process. Names are those of the
// controls; the handlers are put in by the engine.
#pragma once

#include <array>
#include <cstdint>
#include <deque>
#include <optional>
#include <string>
#include <vector>

#include "forms/chameleon_button.h"
#include "forms/controls.h"
#include "forms/file_boxes.h"
#include "forms/form.h"
#include "forms/list_view.h"
#include "forms/progress_bar.h"
#include "forms/result_list.h"
#include "forms/tray_area.h"
#include "platform/machine.h"

namespace tavr {

/// "Scripting.FileSystemObject", as far as deletion works through it: it is
/// there or it is not.
struct FileSystemObject {};

/// A button of the title strip: it takes the strip's colour at rest and under
/// the mouse.
using StripButton = ChameleonButton;

struct Form1 : Form {
  /// Every control in its place; no handler is in.
  explicit Form1(Machine& machine);

  /// A row of the language list that was loaded beside the designed one.
  void takeLanguageRow(Label& row);

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
  double next_date = 0;       // of the schedule, as last read (config/dates.h)

  bool shadow = false;  // a soft shadow stands behind the form

  // The title strip: close, minimise, language list, about, and the name.
  std::int32_t strip_color = 0;
  StripButton chameleonButton9, chameleonButton10, chameleonButton12, chameleonButton13;
  std::deque<Label> Label88 = std::deque<Label>(7);  // [6]: the program's name
  Label Label222;                                    // the year

  // The language list that chameleonButton12 opens.
  Picture pictrlang;
  Picture imglangselect;  // marks the row in force
  std::deque<Label> lbllanguage = std::deque<Label>(1);

  // The toolbar by button index; what carries no command separates.
  Frame Toolbar1;
  std::array<Button, 15> toolbar;  // 1 to 14

  // The popup menu of the tray icon, visible while it is open: "a", "a1" to "a10".
  Frame bccc;
  std::array<Button, 11> menu;

  // What a person watches.
  ListView View100;
  ResultList View200;
  std::array<Label, 2> Label1;  // of a run: Label1[0]
  Label Label2, Label4, Label6;
  Label Label3, Label5;  // captions, with Label1[1]
  ProgressBar bar1;
  Picture Gif89a1;

  // The command column.
  Button cmd_settings, cmd_option, cmd_plugin, cmd_test, cmd_start, cmd_stop, cmd_view, cmd_clear;
  ChameleonButton chameleonButton1, chameleonButton2;  // view log, clear log
  ChameleonButton chameleonButton3, chameleonButton4;  // plug-in maker, help
  ChameleonButton chameleonButton5, chameleonButton6;  // Erase, Test
  ChameleonButton chameleonButton7, chameleonButton8;  // settings, options
  ChameleonButton chameleonButton11;                   // exit
  Picture Image44;                                     // help

  Button Command5, Command6;  // procedures that other forms and the start call
  FormTimer Timer1, Timer2;
  TrayArea TrayArea1;

  // Hidden controls: variables, triggers and scratch lists.
  TextBox Text2, Text3, Text4, Text5, Text7, Text8, Text9, Text10, Text11, Text12, Text13, Text14,
      Text15, Text16;
  TextBox txtregcount, txtfilecount, txtfilesize, txtcountfil, txtlang;
  TextList List4, List5, List6, List7, List8, List9, List10, List11;
  TextList List12, List13, List20, List21;
  FileListBox File1;
  DirListBox Dir1;
  ListView View1;
};

}  // namespace tavr
