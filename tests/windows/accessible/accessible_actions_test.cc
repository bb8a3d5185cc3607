// What a screen reader does to a control, and what it is told of changes.
#include <gmock/gmock.h>

#include <algorithm>
#include <utility>
#include <vector>

#include "platform/win32/wide.h"
#include "tests/windows/accessible/asked.h"
#include "tests/windows/accessible/shown_program.h"

namespace tavr::win32::testing {
namespace {

TEST(AccessibleActions, AButtonIsPressedWhenTheCallHasReturned) {
  ShownProgram shown;
  const ComPointer<IAccessible> button = accessibleOf(shown.window("Form1", "cmd_option"));
  ASSERT_TRUE(button);
  EXPECT_EQ(button->accDoDefaultAction(self()), S_OK);
  EXPECT_EQ(shown.program().desk.loaded("Form3"), nullptr);
  shown.pump();
  ASSERT_NE(shown.program().desk.loaded("Form3"), nullptr);
  EXPECT_NE(shown.formWindow("Form3"), nullptr);
}

TEST(AccessibleActions, ACheckBoxChangesAndTellsTheOtherAction) {
  ShownProgram shown;
  open(shown, {"Form2", "cmd_plugin"});
  const auto& box = dynamic_cast<CheckBox&>(shown.control("Form2", "Check1(52)"));
  const int before = box.value();
  const HWND window = shown.window("Form2", "Check1(52)");
  EXPECT_EQ(accessibleOf(window)->accDoDefaultAction(self()), S_OK);
  shown.pump();
  EXPECT_EQ(box.value(), 1 - before);
  EXPECT_EQ(ask(window).has(STATE_SYSTEM_CHECKED), before == 0);
  EXPECT_EQ(ask(window).action, before == 0 ? "Uncheck" : "Check");
}

TEST(AccessibleActions, ADisabledButtonIsNotPressed) {
  ShownProgram shown;
  auto& button = dynamic_cast<Button&>(shown.control("Form1", "cmd_stop"));
  ASSERT_FALSE(button.enabled);
  bool pressed = false;
  button.onClick = [&pressed] { pressed = true; };
  const ComPointer<IAccessible> stop = accessibleOf(shown.window("Form1", "cmd_stop"));
  ASSERT_TRUE(stop);
  EXPECT_EQ(stop->accDoDefaultAction(self()), S_FALSE);
  shown.pump();
  EXPECT_FALSE(pressed);
  button.enabled = true;
  shown.pump();
  EXPECT_EQ(stop->accDoDefaultAction(self()), S_OK);
  shown.pump();
  EXPECT_TRUE(pressed);
}

TEST(AccessibleActions, ALabelHasNone) {
  ShownProgram shown;
  const ComPointer<IAccessible> label = accessibleOf(shown.window("Form1", "Label3"));
  ASSERT_TRUE(label);
  EXPECT_EQ(label->accDoDefaultAction(self()), DISP_E_MEMBERNOTFOUND);
}

TEST(AccessibleActions, TheObjectOfAControlThatIsGoneSaysSo) {
  ShownProgram shown;
  shown.open("frmabout");
  const ComPointer<IAccessible> button = accessibleOf(shown.window("frmabout", "chameleonButton1"));
  ASSERT_TRUE(button);
  shown.control("frmabout", "chameleonButton1").press();
  shown.pump();
  ASSERT_EQ(shown.formWindow("frmabout"), nullptr);
  BSTR name = nullptr;
  VARIANT answer{};
  long count = 0;
  EXPECT_EQ(button->get_accName(self(), &name), CO_E_OBJNOTCONNECTED);
  EXPECT_EQ(button->get_accState(self(), &answer), CO_E_OBJNOTCONNECTED);
  EXPECT_EQ(button->get_accChildCount(&count), CO_E_OBJNOTCONNECTED);
  EXPECT_EQ(button->accDoDefaultAction(self()), CO_E_OBJNOTCONNECTED);
}

// What was heard since it was made. A hook's function has no other way to it.
class Heard {
 public:
  Heard()
      : hook_(SetWinEventHook(EVENT_OBJECT_FOCUS, EVENT_OBJECT_VALUECHANGE, nullptr, &onEvent,
                              GetCurrentProcessId(), 0, WINEVENT_OUTOFCONTEXT)) {
    events().clear();
  }
  ~Heard() { UnhookWinEvent(hook_); }
  Heard(const Heard&) = delete;
  Heard& operator=(const Heard&) = delete;

  static bool has(DWORD event, HWND window) {
    return std::ranges::count(events(), std::pair(event, window)) > 0;
  }

 private:
  static std::vector<std::pair<DWORD, HWND>>& events() {
    static std::vector<std::pair<DWORD, HWND>> heard;
    return heard;
  }
  static void CALLBACK onEvent(HWINEVENTHOOK, DWORD event, HWND window, LONG object, LONG, DWORD,
                               DWORD) {
    if (object == OBJID_CLIENT) events().emplace_back(event, window);
  }

  HWINEVENTHOOK hook_;
};

TEST(AccessibleEvents, ACaptionThatChangesIsTold) {
  ShownProgram shown;
  const HWND label = shown.window("Form1", "Label4");
  const Heard heard;
  shown.control("Form1", "Label4").caption = "17";
  shown.pump();
  EXPECT_TRUE(heard.has(EVENT_OBJECT_NAMECHANGE, label));
  EXPECT_FALSE(heard.has(EVENT_OBJECT_STATECHANGE, label));
}

TEST(AccessibleEvents, ABoxThatIsTickedIsTold) {
  ShownProgram shown;
  open(shown, {"Form2", "cmd_plugin"});
  const HWND box = shown.window("Form2", "Check1(52)");
  const HWND other = shown.window("Form2", "Check1(44)");
  const Heard heard;
  shown.control("Form2", "Check1(52)").press();
  shown.pump();
  EXPECT_TRUE(heard.has(EVENT_OBJECT_STATECHANGE, box));
  EXPECT_FALSE(heard.has(EVENT_OBJECT_STATECHANGE, other));
}

TEST(AccessibleEvents, ProgressIsTold) {
  ShownProgram shown;
  ProgressBar& bar = shown.program().form.bar1;
  bar.setVisible(true);
  shown.pump();
  const HWND window = shown.window("Form1", "bar1");
  const Heard heard;
  bar.setValue(60);
  shown.pump();
  EXPECT_TRUE(heard.has(EVENT_OBJECT_VALUECHANGE, window));
}

TEST(AccessibleEvents, TheFocusIsToldByTheSystem) {
  ShownProgram shown;
  const HWND button = shown.window("Form1", "cmd_test");
  const Heard heard;
  SetFocus(button);
  shown.pump();
  EXPECT_TRUE(heard.has(EVENT_OBJECT_FOCUS, button));
}

}  // namespace
}  // namespace tavr::win32::testing
