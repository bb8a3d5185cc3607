#include "tests/support/press_effects.h"

namespace tavr::testing {

namespace {

using EffectTable = std::map<std::string, Effects>;

Effects operator+(Effects one, const Effects& other) {
  one.insert(one.end(), other.begin(), other.end());
  return one;
}

const std::string kHelpFile = "<p>\\tavrwork-helpdoc.chm>sec\\n";
const std::string kCookiesNoted =
    "+~\\tavr wipe\\\\cookies=C:\\Users\\user\\AppData\\Local\\Microsoft\\Windows\\INetCookies";
const Effects kPlugInFiles = {
    "+<p>\\slectplg.cln=", "+<p>\\plgfile.cln=", "+<p>\\plgfoldr.cln=", "+<p>\\plgreg.cln="};
const Effects kPlugInsListed = kPlugInFiles + Effects{"Form2.View1=1", kCookiesNoted};

// The one trace of the stage is found, and by Erase alone removed.
const Effects kTestRun = {
    "+<p>\\eraselog.txt", "Form1.Label4=1", "Form1.Label6=0.001 KB",
    "Form1.View200=1",    "Form1.View1=1",  kCookiesNoted,
};
const Effects kEraseRun =
    kTestRun + Effects{
                   "-C:\\Users\\user\\AppData\\Local\\Google\\Chrome\\User Data\\Default\\s1"
                   "\\Cookies",
                   "+~\\tavr brightbox deluxe\\statics\\tracks\\\\rcount=0",
                   "+~\\tavr brightbox deluxe\\statics\\tracks\\\\count=1",
                   "+~\\tavr brightbox deluxe\\statics\\tracks\\\\size=1.0009765625"};

const Effects kGeneralSaved = {"+~\\tavr wipe\\\\secure_value=", "+~\\tavr wipe\\\\key="};
const Effects kStartPageSaved = {
    "+HKCU\\software\\microsoft\\internet explorer\\main\\\\window title=",
    "+~\\tavr wipe\\\\homepage=http://a", "+~\\tavr wipe\\\\titlepage="};
const Effects kScheduleSaved = {"+~\\tavr wipe\\timer\\\\winstart=0",
                                "+~\\tavr wipe\\timer\\\\startdate=11/20/2026",
                                "+~\\tavr wipe\\timer\\\\starttime=10:00:00 AM",
                                "+~\\tavr wipe\\timer\\\\option=",
                                "+~\\tavr wipe\\timer\\\\value=",
                                "+~\\tavr wipe\\timer\\\\min=0",
                                "+~\\tavr wipe\\timer\\\\hour=10",
                                "+~\\tavr wipe\\timer\\\\nextmin=",
                                "+~\\tavr wipe\\timer\\\\nexthoure=",
                                "+~\\tavr wipe\\timer\\\\nextday=",
                                "+~\\tavr wipe\\timer\\\\nextweek=",
                                "+~\\tavr wipe\\timer\\\\nextmnth="};
const Effects kLogOnTaskMade = {
    "+shell.log=run 0 schtasks /create /SC ONLOGON /rl highest /tn \"Tavrwork Spoorwipe\" /tr "
    "\"'<p>\\tavrwipe.exe s'\"\\n"};

Effects opens(const std::string& form) { return {"Form1.enabled=no", "+" + form + "=open"}; }
Effects closes(const std::string& form) { return {"Form1.enabled=yes", "-" + form}; }
Effects asksShell(const std::string& line) { return {"+shell.log=" + line}; }

/// A box of a form that is off on the fresh program, but for the one selection.
Effects turns(const std::string& form, const std::string& key, int box) {
  const std::string number = std::to_string(box);
  const bool chosen = form == "Form2" && box == 52;
  const std::string value = chosen ? "0" : "1";
  return {form + ".Check1(" + number + ")=" + value, std::string(chosen ? "" : "+") +
                                                         "~\\tavr wipe\\option\\" + key + "\\\\" +
                                                         number + "=" + value};
}
Effects selects(const std::vector<int>& boxes) {
  Effects effects;
  for (const int box : boxes) effects = effects + turns("Form2", "win", box);
  return effects;
}
Effects showsPanel(const std::string& form, const std::string& frame,
                   const std::string& instead_of) {
  return {form + "." + frame + ".visible=yes", form + "." + instead_of + ".visible=no"};
}

const EffectTable kMainForm = {
    {"chameleonButton12", {"Form1.pictrlang.visible=yes"}},
    {"chameleonButton13", opens("frmabout")},
    {"chameleonButton10", {"Form1.visible=no", "Form1.TrayArea1.visible=yes"}},
    {"lbllanguage(0)",
     {"+~\\tavrwork brightbox\\tavrwipe\\\\lang=en",
      "+~\\tavrwork brightbox\\tavrwipe\\\\langcode=0",
      "+~\\tavrwork brightbox\\tavrwipe\\\\langindex=0"}},
    {"Toolbar1(1)", opens("Form2")},
    {"Toolbar1(2)", opens("Form3")},
    {"Toolbar1(4)", asksShell("run 2 <p>\\plug-in maker.exe\\n")},
    {"Toolbar1(6)",
     kTestRun + Effects{"Form1.Toolbar1(1).enabled=no", "Form1.Toolbar1(2).enabled=no",
                        "Form1.Toolbar1(4).enabled=no", "Form1.Toolbar1(6).enabled=no",
                        "Form1.Toolbar1(8).enabled=no", "Form1.Toolbar1(10).enabled=yes",
                        "Form1.Toolbar1(11).enabled=no", "Form1.Toolbar1(12).enabled=no"}},
    {"Toolbar1(8)", kEraseRun + Effects{"Form1.Toolbar1(10).enabled=yes"}},
    {"Toolbar1(11)", asksShell("execute 1 - <p>\\eraselog.txt\\n")},
    {"Toolbar1(12)", {"+<p>\\eraselog.txt", "+frmmsg=open"}},
    {"Toolbar1(14)", asksShell("run 1 <p>\\tavrclean.exe\\n")},
    {"cmd_settings", opens("Form2")},
    {"cmd_option", opens("Form3")},
    {"cmd_plugin", asksShell("run 2 <p>\\plug-in maker.exe\\n")},
    {"cmd_test", kTestRun},
    {"cmd_start", kEraseRun},
    {"cmd_view", asksShell("execute 1 - <p>\\eraselog.txt\\n")},
    {"cmd_clear", {"+<p>\\eraselog.txt", "+frmmsg=open"}},
    {"chameleonButton7", opens("Form2")},
    {"chameleonButton8", opens("Form3")},
    {"chameleonButton3", asksShell("run 2 <p>\\plug-in maker.exe\\n")},
    {"chameleonButton6", kTestRun},
    {"chameleonButton5", kEraseRun},
    {"chameleonButton1", asksShell("execute 1 - <p>\\eraselog.txt\\n")},
    {"chameleonButton2", {"+<p>\\eraselog.txt", "+frmmsg=open"}},
    {"Image44", asksShell("htmlhelp 15 21 " + kHelpFile)},
    {"chameleonButton4", asksShell("htmlhelp 15 21 " + kHelpFile)},
    {"a10", asksShell("run 2 Start https://www.tavrwork.example\\n") + Effects{"+frmmsg=open"}},
    {"a7", kEraseRun},
    {"a5", opens("Form3")},
    {"a4", opens("Form2")},
    {"a2",
     asksShell("run 2 Start https://www.tavrwork.example/plugin.htm\\n") + Effects{"+frmmsg=open"}},
    {"chameleonButton9", {"ends"}},
    {"chameleonButton11", {"ends"}},
    {"a", {"ends"}},
};

EffectTable selectionForm() {
  const Effects applications = kPlugInsListed + showsPanel("Form2", "Frame3", "Frame9");
  EffectTable table = {
      {"chameleonButton1", {"Form2.Frame1.visible=yes"}},
      {"chameleonButton2", {"Form2.Frame2.visible=yes"}},
      {"chameleonButton3", applications},
      {"chameleonButton31", applications},
      {"Toolbar1(7)", applications},
      {"chameleonButton4", closes("Form2")},
      {"chameleonButton32", closes("Form2")},
      {"chameleonButton5", kPlugInFiles},
      {"chameleonButton14", kPlugInFiles},
      {"chameleonButton6", {"+Form52=open"}},
      {"chameleonButton7", {"+Form52=open"}},
      {"chameleonButton8", kPlugInsListed},
      {"chameleonButton10", {"+frmmsg=open"}},
      {"chameleonButton12", asksShell("execute 1 open https://www.tavrwork.example/plugin.htm\\n")},
      {"chameleonButton13", asksShell("execute 1 open <p>\\plug-in maker.exe\\n")},
      {"chameleonButton15", selects({0, 1, 2, 3, 4})},
      {"chameleonButton17", selects({8, 9, 10, 11, 12, 13})},
      {"chameleonButton19", selects({24, 25, 26})},
      {"chameleonButton21", selects({19, 20, 21, 22, 23})},
      {"chameleonButton23", selects({31, 32, 33, 34, 35})},
      {"chameleonButton25", selects({37, 38, 39, 40})},
      {"chameleonButton27", selects({44, 45, 46, 49})},
      {"chameleonButton28", selects({52})},
      {"chameleonButton30", showsPanel("Form2", "Frame2", "Frame9")},
      {"Toolbar1(2)", showsPanel("Form2", "Frame5", "Frame9")},
      {"Toolbar1(3)", showsPanel("Form2", "Frame4", "Frame9")},
      {"Toolbar1(4)", showsPanel("Form2", "Frame7", "Frame9")},
      {"Toolbar1(5)", showsPanel("Form2", "Frame8", "Frame9")},
      {"Toolbar1(6)", showsPanel("Form2", "Frame2", "Frame9")},
      {"Image44", asksShell("htmlhelp 15 22 " + kHelpFile)},
  };
  for (int i = 0; i < 55; ++i) table["Check1(" + std::to_string(i) + ")"] = selects({i});
  for (const char* box : {"Check1(14)", "Check1(15)"}) table[box] = table[box] + kPlugInFiles;
  const std::map<int, int> labels = {{0, 45}, {1, 46}, {2, 49},  {3, 44}, {4, 52},
                                     {5, 43}, {7, 13}, {8, 12},  {9, 11}, {10, 10},
                                     {11, 8}, {12, 9}, {13, 53}, {14, 54}};
  for (const auto& [label, box] : labels) {
    table["Label2(" + std::to_string(label) + ")"] = selects({box});
  }
  return table;
}

EffectTable optionsForm() {
  const Effects all = closes("Form3") + kGeneralSaved + kStartPageSaved + kScheduleSaved;
  EffectTable table = {
      {"chameleonButton4", all},
      {"chameleonButton19", all},
      {"chameleonButton32", all},
      {"Toolbar1(6)", all},
      {"chameleonButton8", showsPanel("Form3", "Frame2", "Frame3")},
      {"chameleonButton7", showsPanel("Form3", "Frame2", "Frame3")},
      {"Toolbar1(3)", showsPanel("Form3", "Frame2", "Frame3")},
      {"chameleonButton6", showsPanel("Form3", "Frame1", "Frame3")},
      {"Toolbar1(2)", showsPanel("Form3", "Frame1", "Frame3")},
      {"Toolbar1(5)", asksShell("htmlhelp 15 23 " + kHelpFile)},
      {"chameleonButton9", kGeneralSaved},
      {"chameleonButton5", kScheduleSaved},
      {"chameleonButton2", kStartPageSaved},
      {"chameleonButton1", {"Form3.Text10=about:blank"}},
      {"Label2(16)", turns("Form3", "option", 5)},
      {"Label2(18)", turns("Form3", "option", 3)},
      {"Label3(1)", turns("Form3", "option", 1)},
      {"Label3(2)", turns("Form3", "option", 4) + kLogOnTaskMade},
  };
  for (int i = 0; i < 6; ++i) {
    table["Check1(" + std::to_string(i) + ")"] = turns("Form3", "option", i);
    const std::string option = "Option" + std::to_string(i + 1);
    table[option] = {"Form3." + option + "=1"};
  }
  table["Check1(4)"] = table["Check1(4)"] + kLogOnTaskMade;
  return table;
}

const EffectTable kNote = {{"Check1", {"Form4.Check1=1", "+~\\tavr wipe\\option\\\\msg=1"}},
                           {"command2", {"-Form4"}}};
const EffectTable kKeepList = {{"keepbutton7", {"-Form52", "+<p>\\cookies.tvr="}},
                               {"keepbutton10", {"-Form52"}}};
const EffectTable kMessage = {{"chameleonButton1", {"-frmmsg"}}, {"command2", {"-frmmsg"}}};
const EffectTable kAbout = {
    {"Label2(3)", asksShell("execute 1 open https://www.tavrwork.example\\n")},
    {"Label2(2)", asksShell("execute 1 open https://www.tavrwork.example/plugin.htm\\n")},
    {"Label2(1)", asksShell("execute 1 open https://www.tavrwork.example/support.htm\\n")},
    {"Label2(0)", asksShell("execute 1 open <p>\\tavrlocale.exe\\n")},
    {"chameleonButton1", closes("frmabout")}};

}  // namespace

EffectTable pressEffects(std::string_view form) {
  if (form == "Form1") return kMainForm;
  if (form == "Form2") return selectionForm();
  if (form == "Form3") return optionsForm();
  if (form == "Form4") return kNote;
  if (form == "Form52") return kKeepList;
  return form == "frmmsg" ? kMessage : kAbout;
}

}  // namespace tavr::testing
