// Procedures before that of a window: their order, and how they come and go.
#include "ui/win32/subclass.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>

namespace tavr::win32::testing {
namespace {

constexpr UINT kAsked = WM_APP + 1;
constexpr UINT kAskedWithin = WM_APP + 2;
constexpr LRESULT kOwnAnswer = 7;

std::string told;                     // who has had the message, "21w"
std::function<void(UINT)> meanwhile;  // runs in the procedure numbered 2, before the next

LRESULT CALLBACK ownProcedure(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
  if (message < WM_APP) return DefWindowProcW(window, message, wparam, lparam);
  told += 'w';
  return kOwnAnswer;
}

LRESULT CALLBACK tell(HWND window, UINT message, WPARAM wparam, LPARAM lparam, UINT_PTR id,
                      DWORD_PTR data) {
  if (message >= WM_APP) told += std::to_string(data == 0 ? id : data);
  if (id == 2 && meanwhile) meanwhile(message);
  return nextProcedure(window, message, wparam, lparam);
}

LRESULT CALLBACK foreign(HWND window, UINT message, WPARAM wparam, LPARAM lparam, UINT_PTR id,
                         DWORD_PTR) {
  if (message == WM_NCDESTROY) RemoveWindowSubclass(window, &foreign, id);
  if (message >= WM_APP) told += 'f';
  return DefSubclassProc(window, message, wparam, lparam);
}

// Without a place on any display.
HWND makeWindow() {
  WNDCLASSEXW window_class{};
  window_class.cbSize = sizeof(window_class);
  window_class.lpfnWndProc = &ownProcedure;
  window_class.hInstance = GetModuleHandleW(nullptr);
  window_class.lpszClassName = L"TavrSubclassed";
  RegisterClassExW(&window_class);
  return CreateWindowExW(0, L"TavrSubclassed", L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr,
                         window_class.hInstance, nullptr);
}

class Subclass : public ::testing::Test {
 protected:
  void SetUp() override {
    told.clear();
    meanwhile = nullptr;
    window_ = makeWindow();
    ASSERT_NE(window_, nullptr);
  }
  void TearDown() override {
    meanwhile = nullptr;
    DestroyWindow(window_);
  }
  void set(UINT_PTR id, DWORD_PTR data = 0) const { setSubclass(window_, &tell, id, data); }
  void remove(UINT_PTR id) const { removeSubclass(window_, &tell, id); }
  /// Who has had a message sent now.
  std::string asked(UINT message = kAsked) const {
    told.clear();
    EXPECT_EQ(SendMessageW(window_, message, 0, 0), kOwnAnswer);
    return told;
  }
  bool isOwn() const {
    return GetWindowLongPtrW(window_, GWLP_WNDPROC) == reinterpret_cast<LONG_PTR>(&ownProcedure);
  }

  HWND window_ = nullptr;
};

TEST_F(Subclass, TheLastComesFirstAndTheWindowLast) {
  set(1);
  set(2);
  set(3);
  EXPECT_EQ(asked(), "321w");
}

TEST_F(Subclass, TheSameNumberTakesTheNewData) {
  set(1, 4);
  set(2);
  set(1, 5);
  EXPECT_EQ(asked(), "25w");
}

TEST_F(Subclass, OneInTheMiddleGoesAlone) {
  for (const UINT_PTR id : {1, 2, 3}) set(id);
  remove(2);
  EXPECT_EQ(asked(), "31w");
  remove(2);
  remove(9);
  EXPECT_EQ(asked(), "31w");
}

TEST_F(Subclass, WithTheLastTheWindowHasItsOwnProcedureAgain) {
  set(1);
  EXPECT_FALSE(isOwn());
  remove(1);
  EXPECT_TRUE(isOwn());
  EXPECT_EQ(asked(), "w");
}

TEST_F(Subclass, OneThatRemovesItselfWhileItRunsStillCallsTheNext) {
  for (const UINT_PTR id : {1, 2, 3}) set(id);
  meanwhile = [this](UINT) { remove(2); };
  EXPECT_EQ(asked(), "321w");
  EXPECT_EQ(asked(), "31w");
}

TEST_F(Subclass, OneThatIsRemovedMeanwhileIsNotCalled) {
  for (const UINT_PTR id : {1, 2, 3}) set(id);
  meanwhile = [this](UINT) { remove(1); };
  EXPECT_EQ(asked(), "32w");
}

TEST_F(Subclass, AllMayGoWhileOneRuns) {
  for (const UINT_PTR id : {1, 2}) set(id);
  meanwhile = [this](UINT) {
    remove(1);
    remove(2);
  };
  EXPECT_EQ(asked(), "2w");
  EXPECT_TRUE(isOwn());
}

TEST_F(Subclass, OneThatComesMeanwhileHasTheNextMessage) {
  for (const UINT_PTR id : {1, 2}) set(id);
  meanwhile = [this](UINT) { set(3); };
  EXPECT_EQ(asked(), "21w");
  EXPECT_EQ(asked(), "321w");
}

TEST_F(Subclass, AMessageWithinAMessageGoesThroughAll) {
  for (const UINT_PTR id : {1, 2, 3}) set(id);
  meanwhile = [this](UINT message) {
    if (message == kAsked) SendMessageW(window_, kAskedWithin, 0, 0);
  };
  EXPECT_EQ(asked(), "32321w1w");
}

TEST_F(Subclass, SomebodyElsesProcedureBeforeOursStays) {
  set(1);
  ASSERT_TRUE(SetWindowSubclass(window_, &foreign, 1, 0));
  EXPECT_EQ(asked(), "f1w");
  remove(1);
  EXPECT_EQ(asked(), "fw");
  set(2);
  EXPECT_EQ(asked(), "f2w");
}

TEST_F(Subclass, GoesWithItsWindow) {
  set(1);
  set(2);
  DestroyWindow(window_);
  window_ = makeWindow();
  EXPECT_EQ(asked(), "w");
}

TEST_F(Subclass, TheWindowMayGoWhileOneRuns) {
  set(1);
  set(2);
  meanwhile = [this](UINT message) {
    if (message == kAsked) DestroyWindow(window_);
  };
  told.clear();
  SendMessageW(window_, kAsked, 0, 0);
  EXPECT_FALSE(IsWindow(window_));
  EXPECT_EQ(told.substr(0, 2), "21");
}

}  // namespace
}  // namespace tavr::win32::testing
