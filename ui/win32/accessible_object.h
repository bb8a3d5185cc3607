// The object through which a screen reader reads and works a self-drawn control.
// It adds what only the program knows (name, role, state, value, what a press
// does) to the object that Windows makes for any window. It lives as long as
// somebody holds it, and answers CO_E_OBJNOTCONNECTED once the control is gone.
#pragma once

#include <windows.h>
// Behind windows.h.
#include <oleacc.h>

#include <string>

#include "platform/win32/com.h"
#include "ui/win32/accessible_facts.h"

namespace tavr::win32 {

/// The control behind the object.
class AccessibleSource {
 public:
  virtual ~AccessibleSource() = default;
  virtual AccessibleFacts accessibleFacts() const = 0;
  virtual std::string accessibleShortcut() const = 0;
  /// As if a person had pressed it; it acts when the call has returned.
  virtual void accessiblePress() = 0;
};

class AccessibleObject final : public IAccessible, public IOleWindow {
 public:
  /// With one reference; null where Windows gives no object to build on.
  static AccessibleObject* make(HWND window, AccessibleSource& source);
  /// The control goes away.
  void disconnect();

  // IUnknown
  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override;
  ULONG STDMETHODCALLTYPE AddRef() override;
  ULONG STDMETHODCALLTYPE Release() override;

  // IDispatch: not for scripts.
  HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override;
  HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) override;
  HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override;
  HRESULT STDMETHODCALLTYPE Invoke(DISPID, REFIID, LCID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*,
                                   UINT*) override;

  // IOleWindow
  HRESULT STDMETHODCALLTYPE GetWindow(HWND* window) override;
  HRESULT STDMETHODCALLTYPE ContextSensitiveHelp(WINBOOL) override;

  // IAccessible
  HRESULT STDMETHODCALLTYPE get_accParent(IDispatch** parent) override;
  HRESULT STDMETHODCALLTYPE get_accChildCount(long* count) override;
  HRESULT STDMETHODCALLTYPE get_accChild(VARIANT child, IDispatch** object) override;
  HRESULT STDMETHODCALLTYPE get_accName(VARIANT child, BSTR* name) override;
  HRESULT STDMETHODCALLTYPE get_accValue(VARIANT child, BSTR* value) override;
  HRESULT STDMETHODCALLTYPE get_accDescription(VARIANT child, BSTR* description) override;
  HRESULT STDMETHODCALLTYPE get_accRole(VARIANT child, VARIANT* role) override;
  HRESULT STDMETHODCALLTYPE get_accState(VARIANT child, VARIANT* state) override;
  HRESULT STDMETHODCALLTYPE get_accHelp(VARIANT child, BSTR* help) override;
  HRESULT STDMETHODCALLTYPE get_accHelpTopic(BSTR* file, VARIANT child, long* topic) override;
  HRESULT STDMETHODCALLTYPE get_accKeyboardShortcut(VARIANT child, BSTR* shortcut) override;
  HRESULT STDMETHODCALLTYPE get_accFocus(VARIANT* child) override;
  HRESULT STDMETHODCALLTYPE get_accSelection(VARIANT* children) override;
  HRESULT STDMETHODCALLTYPE get_accDefaultAction(VARIANT child, BSTR* action) override;
  HRESULT STDMETHODCALLTYPE accSelect(long flags, VARIANT child) override;
  HRESULT STDMETHODCALLTYPE accLocation(long* left, long* top, long* width, long* height,
                                        VARIANT child) override;
  HRESULT STDMETHODCALLTYPE accNavigate(long direction, VARIANT start, VARIANT* end) override;
  HRESULT STDMETHODCALLTYPE accHitTest(long left, long top, VARIANT* child) override;
  HRESULT STDMETHODCALLTYPE accDoDefaultAction(VARIANT child) override;
  HRESULT STDMETHODCALLTYPE put_accName(VARIANT child, BSTR name) override;
  HRESULT STDMETHODCALLTYPE put_accValue(VARIANT child, BSTR value) override;

 private:
  AccessibleObject(HWND window, AccessibleSource& source, ComPointer<IAccessible> standard);
  ~AccessibleObject() = default;
  /// S_OK when the control is there and `child` means it, not a part of it.
  HRESULT meant(const VARIANT& child) const;

  ULONG references_ = 1;
  HWND window_;
  AccessibleSource* source_;          ///< null once the control is gone
  ComPointer<IAccessible> standard_;  ///< Windows' own for the window
};

}  // namespace tavr::win32
