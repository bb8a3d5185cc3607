#include "tests/windows/accessible/asked.h"

#include "platform/win32/wide.h"
#include "ui/win32/accessible_library.h"

namespace tavr::win32::testing {

namespace {

using TextQuestion = HRESULT (STDMETHODCALLTYPE IAccessible::*)(VARIANT, BSTR*);
using NumberQuestion = HRESULT (STDMETHODCALLTYPE IAccessible::*)(VARIANT, VARIANT*);

std::string textOf(IAccessible& object, TextQuestion question) {
  BSTR text = nullptr;
  if ((object.*question)(self(), &text) != S_OK || text == nullptr) return "";
  std::string answer = narrow(text);
  SysFreeString(text);
  return answer;
}

long numberOf(IAccessible& object, NumberQuestion question) {
  VARIANT answer{};
  const bool given = (object.*question)(self(), &answer) == S_OK && answer.vt == VT_I4;
  return given ? answer.lVal : 0;
}

}  // namespace

VARIANT self() {
  VARIANT child{};
  child.vt = VT_I4;
  child.lVal = CHILDID_SELF;
  return child;
}

ComPointer<IAccessible> accessibleOf(HWND window) {
  ComPointer<IAccessible> object;
  const auto ask = accessibleFunction<LPFNACCESSIBLEOBJECTFROMWINDOW>("AccessibleObjectFromWindow");
  if (ask) ask(window, static_cast<DWORD>(OBJID_CLIENT), IID_IAccessible, object.outAny());
  return object;
}

HWND windowOf(IAccessible& object) {
  using Function = HRESULT(WINAPI*)(IAccessible*, HWND*);
  HWND window = nullptr;
  const auto ask = accessibleFunction<Function>("WindowFromAccessibleObject");
  if (ask) ask(&object, &window);
  return window;
}

Asked ask(HWND window) {
  const ComPointer<IAccessible> object = accessibleOf(window);
  if (!object) return {};
  IAccessible& asked = *object.get();
  return {textOf(asked, &IAccessible::get_accName),
          textOf(asked, &IAccessible::get_accValue),
          textOf(asked, &IAccessible::get_accKeyboardShortcut),
          textOf(asked, &IAccessible::get_accDefaultAction),
          numberOf(asked, &IAccessible::get_accRole),
          numberOf(asked, &IAccessible::get_accState)};
}

}  // namespace tavr::win32::testing
