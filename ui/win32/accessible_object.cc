#include "ui/win32/accessible_object.h"

#include <utility>

#include "platform/win32/wide.h"
#include "ui/win32/accessible_library.h"

namespace tavr::win32 {

namespace {

// The one who asks frees it. S_FALSE is this interface's way to say "none".
HRESULT give(std::string_view text, BSTR* out) {
  if (out == nullptr) return E_INVALIDARG;
  *out = nullptr;
  if (text.empty()) return S_FALSE;
  *out = SysAllocString(wide(text).c_str());
  return *out ? S_OK : E_OUTOFMEMORY;
}

HRESULT give(long number, VARIANT* out) {
  if (out == nullptr) return E_INVALIDARG;
  out->vt = VT_I4;
  out->lVal = number;
  return S_OK;
}

}  // namespace

AccessibleObject* AccessibleObject::make(HWND window, AccessibleSource& source) {
  const auto create =
      accessibleFunction<LPFNCREATESTDACCESSIBLEOBJECT>("CreateStdAccessibleObject");
  ComPointer<IAccessible> standard;
  if (!create || FAILED(create(window, OBJID_CLIENT, IID_IAccessible, standard.outAny()))) {
    return nullptr;
  }
  return new AccessibleObject(window, source, std::move(standard));
}

AccessibleObject::AccessibleObject(HWND window, AccessibleSource& source,
                                   ComPointer<IAccessible> standard)
    : window_(window), source_(&source), standard_(std::move(standard)) {}

void AccessibleObject::disconnect() {
  source_ = nullptr;
  standard_ = {};
}

HRESULT AccessibleObject::meant(const VARIANT& child) const {
  if (!source_) return CO_E_OBJNOTCONNECTED;
  return child.vt == VT_I4 && child.lVal == CHILDID_SELF ? S_OK : E_INVALIDARG;
}

HRESULT AccessibleObject::QueryInterface(REFIID id, void** object) {
  if (object == nullptr) return E_POINTER;
  *object = nullptr;
  if (id == IID_IUnknown || id == IID_IDispatch || id == IID_IAccessible) {
    *object = static_cast<IAccessible*>(this);
  } else if (id == IID_IOleWindow) {
    *object = static_cast<IOleWindow*>(this);
  } else if (id == IID_IEnumVARIANT && standard_) {
    return standard_->QueryInterface(id, object);  // the windows within
  } else {
    return E_NOINTERFACE;
  }
  AddRef();
  return S_OK;
}

// Windows calls every object on the thread that made it.
ULONG AccessibleObject::AddRef() { return ++references_; }

ULONG AccessibleObject::Release() {
  const ULONG left = --references_;
  if (left == 0) delete this;
  return left;
}

HRESULT AccessibleObject::GetTypeInfoCount(UINT* count) {
  if (count == nullptr) return E_POINTER;
  *count = 0;
  return S_OK;
}
HRESULT AccessibleObject::GetTypeInfo(UINT, LCID, ITypeInfo**) { return E_NOTIMPL; }
HRESULT AccessibleObject::GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) {
  return E_NOTIMPL;
}
HRESULT AccessibleObject::Invoke(DISPID, REFIID, LCID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*,
                                 UINT*) {
  return E_NOTIMPL;
}

HRESULT AccessibleObject::GetWindow(HWND* window) {
  if (window == nullptr) return E_POINTER;
  *window = source_ ? window_ : nullptr;
  return source_ ? S_OK : CO_E_OBJNOTCONNECTED;
}
HRESULT AccessibleObject::ContextSensitiveHelp(WINBOOL) { return E_NOTIMPL; }

HRESULT AccessibleObject::get_accParent(IDispatch** parent) {
  return source_ ? standard_->get_accParent(parent) : CO_E_OBJNOTCONNECTED;
}

HRESULT AccessibleObject::get_accChildCount(long* count) {
  return source_ ? standard_->get_accChildCount(count) : CO_E_OBJNOTCONNECTED;
}

HRESULT AccessibleObject::get_accChild(VARIANT child, IDispatch** object) {
  return source_ ? standard_->get_accChild(child, object) : CO_E_OBJNOTCONNECTED;
}

HRESULT AccessibleObject::get_accName(VARIANT child, BSTR* name) {
  const HRESULT found = meant(child);
  return found == S_OK ? give(source_->accessibleFacts().name, name) : found;
}

HRESULT AccessibleObject::get_accValue(VARIANT child, BSTR* value) {
  const HRESULT found = meant(child);
  return found == S_OK ? give(source_->accessibleFacts().value, value) : found;
}

HRESULT AccessibleObject::get_accDescription(VARIANT child, BSTR* description) {
  const HRESULT found = meant(child);
  return found == S_OK ? give("", description) : found;
}

HRESULT AccessibleObject::get_accRole(VARIANT child, VARIANT* role) {
  const HRESULT found = meant(child);
  return found == S_OK ? give(source_->accessibleFacts().role, role) : found;
}

HRESULT AccessibleObject::get_accState(VARIANT child, VARIANT* state) {
  const HRESULT found = meant(child);
  if (found != S_OK) return found;
  long bits = source_->accessibleFacts().state;
  if (GetFocus() == window_) bits |= STATE_SYSTEM_FOCUSED;
  if (!IsWindowVisible(window_)) bits |= STATE_SYSTEM_INVISIBLE;
  return give(bits, state);
}

HRESULT AccessibleObject::get_accHelp(VARIANT child, BSTR* help) {
  const HRESULT found = meant(child);
  return found == S_OK ? give("", help) : found;
}

HRESULT AccessibleObject::get_accHelpTopic(BSTR*, VARIANT, long*) {
  return source_ ? DISP_E_MEMBERNOTFOUND : CO_E_OBJNOTCONNECTED;
}

HRESULT AccessibleObject::get_accKeyboardShortcut(VARIANT child, BSTR* shortcut) {
  const HRESULT found = meant(child);
  return found == S_OK ? give(source_->accessibleShortcut(), shortcut) : found;
}

HRESULT AccessibleObject::get_accFocus(VARIANT* child) {
  if (!source_) return CO_E_OBJNOTCONNECTED;
  if (child == nullptr) return E_INVALIDARG;
  if (GetFocus() == window_) return give(CHILDID_SELF, child);
  return standard_->get_accFocus(child);
}

HRESULT AccessibleObject::get_accSelection(VARIANT* children) {
  return source_ ? standard_->get_accSelection(children) : CO_E_OBJNOTCONNECTED;
}

HRESULT AccessibleObject::get_accDefaultAction(VARIANT child, BSTR* action) {
  const HRESULT found = meant(child);
  return found == S_OK ? give(source_->accessibleFacts().action, action) : found;
}

HRESULT AccessibleObject::accSelect(long flags, VARIANT child) {
  const HRESULT found = meant(child);
  if (found != S_OK) return found;
  if (flags != SELFLAG_TAKEFOCUS) return E_INVALIDARG;
  if ((source_->accessibleFacts().state & STATE_SYSTEM_FOCUSABLE) == 0) return S_FALSE;
  const HWND form = GetAncestor(window_, GA_ROOT);
  if (!IsWindowEnabled(form)) return S_FALSE;
  SetForegroundWindow(form);
  SetFocus(window_);
  return GetFocus() == window_ ? S_OK : S_FALSE;
}

HRESULT AccessibleObject::accLocation(long* left, long* top, long* width, long* height,
                                      VARIANT child) {
  const HRESULT found = meant(child);
  return found == S_OK ? standard_->accLocation(left, top, width, height, child) : found;
}

HRESULT AccessibleObject::accNavigate(long direction, VARIANT start, VARIANT* end) {
  return source_ ? standard_->accNavigate(direction, start, end) : CO_E_OBJNOTCONNECTED;
}

HRESULT AccessibleObject::accHitTest(long left, long top, VARIANT* child) {
  return source_ ? standard_->accHitTest(left, top, child) : CO_E_OBJNOTCONNECTED;
}

HRESULT AccessibleObject::accDoDefaultAction(VARIANT child) {
  const HRESULT found = meant(child);
  if (found != S_OK) return found;
  const AccessibleFacts facts = source_->accessibleFacts();
  if (facts.action.empty()) return DISP_E_MEMBERNOTFOUND;
  if ((facts.state & STATE_SYSTEM_UNAVAILABLE) != 0) return S_FALSE;
  // A dialog or a question above the form holds every other hand off it, too.
  if (!IsWindowEnabled(GetAncestor(window_, GA_ROOT))) return S_FALSE;
  source_->accessiblePress();
  return S_OK;
}

HRESULT AccessibleObject::put_accName(VARIANT, BSTR) {
  return source_ ? E_NOTIMPL : CO_E_OBJNOTCONNECTED;
}

HRESULT AccessibleObject::put_accValue(VARIANT, BSTR) {
  return source_ ? E_NOTIMPL : CO_E_OBJNOTCONNECTED;
}

}  // namespace tavr::win32
