// What the options form does: a click on a box is stored at once, everything
// else when a save button or an exit is pressed. It changes settings only; the
// runs, the scheduler and the next start of the program read them.
#pragma once

#include "config/form_host.h"
#include "config/schedule.h"
#include "forms/form3.h"

namespace tavr {

class Form3Code {
 public:
  /// Puts the handlers in; reads nothing.
  explicit Form3Code(FormContext& context);
  Form3Code(const Form3Code&) = delete;
  Form3Code& operator=(const Form3Code&) = delete;

  Form3 form;

  void Form_Load();

  /// Stores the box; 4 also makes or removes the task that starts the program
  /// when somebody logs on.
  void Check1_Click(int index);
  /// Toggles the box that the label stands for, if it stands for one.
  void Label2_Click(int index);
  void Label3_Click(int index);
  /// Button 1 to 3 show a panel, 5 opens the help, 6 leaves the form.
  void Toolbar1_ButtonClick(int index);

  /// Stores start page and title, in the browser and as what protection holds.
  void chameleonButton2_Click();
  /// Saves everything and leaves the form.
  void chameleonButton4_Click();
  /// Computes the schedule from the clock's present time and stores it.
  void chameleonButton5_Click();
  /// Stores the number of overwrites and the letter of the hot key.
  void chameleonButton9_Click();
  /// Saves everything, takes the shadow away and closes the form.
  void chameleonButton32_Click();
  /// Attaching again changes nothing.
  void Timer1_Timer();

 private:
  void connectBoxes();
  void connectPanels();
  void connectSchedule();
  void connectSaving();

  void takeLook();
  void readStartPage();
  void readBox(int index);
  void readSchedule();
  void fillCombos();

  void showPanel(Frame& shown);
  void pressSaveButtons();
  void setLogOnTask(bool on);
  ScheduleKind selectedKind() const;
  std::string selectedInterval(ScheduleKind kind);
  void openHelp();
  void saveTimer(std::string_view name, std::string_view text);

  FormContext& context_;
};

}  // namespace tavr
