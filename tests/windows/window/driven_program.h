// The Windows program as a process of its own, driven as a person drives it:
// with the mouse and the keyboard of the session. It finds a control by the name
// that the forms give it, "Form1.cmd_test".
//
// The program deletes files. It starts only in a Wine prefix with one drive.
#pragma once

#include <windows.h>

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tavr::testing {

inline constexpr std::uint32_t kPatience = 5000;  ///< ms that anything may take

/// Whether it comes to hold in the time.
bool comes(const std::function<bool()>& what, std::uint32_t milliseconds = kPatience);

class DrivenProgram {
 public:
  /// Starts a program from the folder of the test program. Raises
  /// std::runtime_error where the program must not run.
  explicit DrivenProgram(std::string_view arguments = "", std::wstring_view file = L"tavrwipe.exe");
  ~DrivenProgram();
  DrivenProgram(const DrivenProgram&) = delete;
  DrivenProgram& operator=(const DrivenProgram&) = delete;

  bool running() const;
  /// The exit status, once it has ended.
  std::optional<DWORD> waitForEnd(std::uint32_t milliseconds = kPatience) const;
  HANDLE process() const { return process_; }

  /// The form's window, seen or not; null when it has none.
  HWND form(std::string_view name) const;
  bool sees(std::string_view form_or_control) const;
  bool comesUp(std::string_view name) const;
  bool goes(std::string_view name) const;
  /// Whether the form gets the keyboard, and everything around has come to rest:
  /// a display that hands the keyboard on lets go of ALT.
  bool comesToFront(std::string_view form_name) const;
  /// The window that shows the control. Raises std::runtime_error when there is none.
  HWND window(std::string_view control) const;
  HWND windowOfClass(std::wstring_view window_class) const;

  /// The window's text, asked of the control itself.
  std::string text(std::string_view control) const;
  bool checked(std::string_view control) const;
  bool enabled(std::string_view control) const;
  /// What the screen shows of it, once it does not change any more.
  std::vector<COLORREF> pixels(std::string_view control) const;

  void click(std::string_view control) const;
  void hover(std::string_view control) const;
  /// The message box of Windows that is open; null: none came in time.
  HWND waitForBox(std::uint32_t milliseconds = kPatience) const;
  static std::string textOfBox(HWND box);
  static void answer(HWND box, int button);

 private:
  std::vector<COLORREF> look(HWND window) const;
  HWND find(std::string_view name) const;
  HWND placed(std::string_view control) const;

  HANDLE process_ = nullptr;
  DWORD id_ = 0;
};

// A person's hands.
void movePointer(POINT screen);
void pressMouse(bool right = false);
void clickAt(HWND window, POINT client, bool right = false);
void doubleClickAt(HWND window, POINT client);
void dragMouse(POINT from, POINT to);  ///< on the screen, by the left button
void pressKey(int key, int with = 0);  ///< virtual keys; `with` is held meanwhile
void typeText(std::string_view text);
/// The middle of a window's own area.
POINT middleOf(HWND window);

}  // namespace tavr::testing
