// What Form2 does: a click on a box is stored at once, load reads all boxes
// back, one panel of three is shown, and the plug-ins are listed, chosen and
// kept in order (form2_plug_ins.cc).
#pragma once

#include <initializer_list>

#include "config/form_host.h"
#include "config/plug_ins.h"
#include "forms/form2.h"

namespace tavr {

class Form2Code {
 public:
  /// Puts the handlers in; reads nothing.
  explicit Form2Code(FormContext& context);
  Form2Code(const Form2Code&) = delete;
  Form2Code& operator=(const Form2Code&) = delete;

  Form2 form;

  void Form_Load();

  /// Stores the box; 15 and 14 also tick and clear all plug-ins.
  void Check1_Click(int index);
  /// Toggles the box that the label stands for, if it stands for one.
  void Label2_Click(int index);
  void Toolbar1_ButtonClick(int index);

  /// Shows the plug-in panel and lists the plug-ins.
  void chameleonButton3_Click();
  /// Leaves the form, and the program where it was started for it alone.
  void chameleonButton4_Click();

  /// Lists the plug-ins, restores their ticks and writes the work files.
  void listPlugIns();

 private:
  void connectBoxes();
  void connectPanels();
  void connectSelections();
  void connectPlugIns();

  void readBox(int index);
  void setBoxes(int first, int last, int value);
  void setBoxes(std::initializer_list<int> indices, int value);
  void showPanel(int number);
  void showFirstPanels(int shown, int hidden);
  void openKeepList(std::string_view heading, std::string_view mode);

  void tickAll(bool on);
  void makeWorkFiles();
  std::string definitionOfSelectedRow();
  void deletePlugIn();
  void showPlugInInfo();
  void importPlugIn();
  void downloadPlugIns();
  void runPlugInMaker();
  void openHelp();

  FormContext& context_;
  PlugIns plug_ins_;
};

}  // namespace tavr
