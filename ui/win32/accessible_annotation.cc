#include "ui/win32/accessible_annotation.h"

// Behind windows.h.
#include <oleacc.h>

#include <utility>

#include "platform/win32/com.h"
#include "platform/win32/wide.h"

namespace tavr::win32 {

namespace {

const MSAAPROPID kProperties[] = {PROPID_ACC_NAME, PROPID_ACC_ROLE};

ComPointer<IAccPropServices> annotations() {
  ComPointer<IAccPropServices> services;
  CoCreateInstance(CLSID_AccPropServices, nullptr, CLSCTX_INPROC_SERVER, IID_IAccPropServices,
                   services.outAny());
  return services;
}

// Where a combo box has the focus, its text field has it.
HWND fieldOf(HWND window) {
  COMBOBOXINFO info{};
  info.cbSize = sizeof(info);
  wchar_t name[16] = L"";
  GetClassNameW(window, name, 16);
  const bool combo = lstrcmpiW(name, L"ComboBox") == 0;
  return combo && GetComboBoxInfo(window, &info) ? info.hwndItem : nullptr;
}

}  // namespace

void AccessibleAnnotation::clear() {
  const HWND window = std::exchange(window_, nullptr);
  if (window == nullptr) return;
  const ComPointer<IAccPropServices> services = annotations();
  if (!services) return;
  for (const HWND part : {window, fieldOf(window)}) {
    if (part == nullptr) continue;
    services->ClearHwndProps(part, static_cast<DWORD>(OBJID_CLIENT), CHILDID_SELF, kProperties,
                             ARRAYSIZE(kProperties));
  }
}

bool AccessibleAnnotation::show(HWND window, const std::string& name, long role) {
  if (window == window_ && name == name_) return true;
  name_ = name;
  window_ = window;
  const ComPointer<IAccPropServices> services = annotations();
  if (!services) return false;
  bool done = true;
  for (const HWND part : {window, fieldOf(window)}) {
    if (part == nullptr) continue;
    done = SUCCEEDED(services->SetHwndPropStr(part, static_cast<DWORD>(OBJID_CLIENT), CHILDID_SELF,
                                              PROPID_ACC_NAME, wide(name).c_str())) &&
           done;
    NotifyWinEvent(EVENT_OBJECT_NAMECHANGE, part, OBJID_CLIENT, CHILDID_SELF);
  }
  if (role == 0) return done;
  VARIANT value{};
  value.vt = VT_I4;
  value.lVal = role;
  const HRESULT set = services->SetHwndProp(window, static_cast<DWORD>(OBJID_CLIENT), CHILDID_SELF,
                                            PROPID_ACC_ROLE, value);
  return done && SUCCEEDED(set);
}

}  // namespace tavr::win32
