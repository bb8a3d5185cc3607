#include "ui/win32/accessible_link.h"

#include <utility>

#include "ui/win32/accessible_library.h"
#include "ui/win32/accessible_object.h"

namespace tavr::win32 {

AccessibleLink::~AccessibleLink() {
  if (object_ == nullptr) return;
  object_->disconnect();
  object_->Release();
}

bool AccessibleLink::answer(HWND window, WPARAM wparam, LPARAM lparam, LRESULT& answer) {
  // The number comes with or without its upper half, by who asks.
  if (static_cast<DWORD>(lparam) != static_cast<DWORD>(OBJID_CLIENT)) return false;
  const auto result = accessibleFunction<LPFNLRESULTFROMOBJECT>("LresultFromObject");
  if (!object_) object_ = AccessibleObject::make(window, source_);
  if (!object_ || !result) return false;
  answer = result(IID_IAccessible, wparam, static_cast<IAccessible*>(object_));
  return true;
}

void AccessibleLink::tell(HWND window) {
  AccessibleFacts now = source_.accessibleFacts();
  const AccessibleFacts before = std::exchange(told_, std::move(now));
  if (!std::exchange(has_told_, true)) return;
  const auto changed = [window](DWORD event) {
    NotifyWinEvent(event, window, OBJID_CLIENT, CHILDID_SELF);
  };
  if (told_.name != before.name) changed(EVENT_OBJECT_NAMECHANGE);
  if (told_.value != before.value) changed(EVENT_OBJECT_VALUECHANGE);
  // The pointer crosses many controls on its way.
  const long news = (told_.state ^ before.state) & ~STATE_SYSTEM_HOTTRACKED;
  if (news != 0) changed(EVENT_OBJECT_STATECHANGE);
}

}  // namespace tavr::win32
