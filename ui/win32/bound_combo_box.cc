#include "ui/win32/bound_combo_box.h"

#include <commctrl.h>

#include "platform/win32/wide.h"
#include "ui/win32/bound_text.h"
#include "ui/win32/form_window.h"

namespace tavr::win32 {

namespace {

constexpr int kOpenHeight = 220;  // px of the box with its list
constexpr int kOwnFrame = 6;      // px of frame around the text field

}  // namespace

BoundComboBox::BoundComboBox(FormWindow& form, ComboBox& box) : BoundControl(form, box), box_(box) {
  const DWORD direction = form.rightToLeft() ? WS_EX_LAYOUTRTL : 0;
  create(WC_COMBOBOXW, CBS_DROPDOWN | CBS_AUTOHSCROLL | WS_VSCROLL, direction);
}

// The height of a native box is that of the box with its list open.
void BoundComboBox::place(const RECT& box) {
  RECT open = box;
  open.bottom = open.top + form_.px(kOpenHeight);
  BoundControl::place(open);
  const int field = box.bottom - box.top - form_.px(kOwnFrame);
  SendMessageW(window_, CB_SETITEMHEIGHT, static_cast<WPARAM>(-1), field);
}

void BoundComboBox::fontChanged() {
  BoundControl::fontChanged();
  const int field = form_.px(box_.box.height - kOwnFrame);
  SendMessageW(window_, CB_SETITEMHEIGHT, static_cast<WPARAM>(-1), field);
}

void BoundComboBox::syncOwn() {
  if (items_ != box_.items) {
    items_ = box_.items;
    SendMessageW(window_, CB_RESETCONTENT, 0, 0);
    for (const std::string& item : items_) {
      SendMessageW(window_, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(wide(item).c_str()));
    }
    SetWindowTextW(window_, wide(shown_).c_str());
  }
  if (shown_ == box_.text()) return;
  shown_ = box_.text();
  SetWindowTextW(window_, wide(shown_).c_str());
}

void BoundComboBox::postText(bool from_list) {
  post([this, from_list] {
    const auto row = SendMessageW(window_, CB_GETCURSEL, 0, 0);
    if (from_list && (row < 0 || row >= static_cast<LRESULT>(box_.items.size()))) return;
    const std::string text = shown_ =
        from_list ? box_.items[static_cast<std::size_t>(row)] : windowText(window_);
    box_.type(text);
  });
}

void BoundComboBox::onCommand(int code) {
  if (code == CBN_SELCHANGE) postText(true);
  if (code == CBN_EDITCHANGE) postText(false);
  // The box takes back what the arrows chose, the form has heard of it.
  if (code == CBN_SELENDCANCEL) {
    post([this] { SetWindowTextW(window_, wide(shown_ = box_.text()).c_str()); });
  }
}

}  // namespace tavr::win32
