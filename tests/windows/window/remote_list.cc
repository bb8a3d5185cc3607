#include "tests/windows/window/remote_list.h"

// Behind windows.h.
#include <commctrl.h>

#include "platform/win32/wide.h"

namespace tavr::testing {

namespace {

constexpr int kTextLength = 1024;
constexpr int kBoxFromLeft = 20;    // px at 96 dpi, into the check box
constexpr int kTextFromLeft = 120;  // px at 96 dpi, behind box and icon

// A program that has crashed answers nothing.
LRESULT ask(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
  constexpr UINT kLongEnough = 5000;  // ms
  DWORD_PTR answer = 0;
  SendMessageTimeoutW(window, message, wparam, lparam, SMTO_NORMAL, kLongEnough, &answer);
  return static_cast<LRESULT>(answer);
}

// A message's parameter lies in the memory of the process that is asked.
template <class Value>
class Remote {
 public:
  Remote(HANDLE process, const Value& value)
      : process_(process),
        place_(VirtualAllocEx(process, nullptr, sizeof(Value), MEM_COMMIT, PAGE_READWRITE)) {
    WriteProcessMemory(process_, place_, &value, sizeof(Value), nullptr);
  }
  ~Remote() { VirtualFreeEx(process_, place_, 0, MEM_RELEASE); }
  Remote(const Remote&) = delete;
  Remote& operator=(const Remote&) = delete;

  char* place() const { return static_cast<char*>(place_); }
  LPARAM parameter() const { return reinterpret_cast<LPARAM>(place_); }
  Value value() const {
    Value read{};
    ReadProcessMemory(process_, place_, &read, sizeof(Value), nullptr);
    return read;
  }
  void set(const Value& value) {
    WriteProcessMemory(process_, place_, &value, sizeof(Value), nullptr);
  }

 private:
  HANDLE process_;
  void* place_;
};

struct ItemText {
  LVITEMW item{};
  wchar_t text[kTextLength] = L"";
};

struct HeaderText {
  HDITEMW item{};
  wchar_t text[kTextLength] = L"";
};

}  // namespace

int RemoteList::rows() const { return static_cast<int>(ask(list_, LVM_GETITEMCOUNT, 0, 0)); }

std::string RemoteList::text(int row, int column) const {
  ItemText asked;
  Remote<ItemText> there(process_, asked);
  asked.item.mask = LVIF_TEXT;
  asked.item.iItem = row;
  asked.item.iSubItem = column;
  asked.item.cchTextMax = kTextLength;
  asked.item.pszText = reinterpret_cast<wchar_t*>(there.place() + offsetof(ItemText, text));
  there.set(asked);
  ask(list_, LVM_GETITEMTEXTW, static_cast<WPARAM>(row), there.parameter());
  return win32::narrow(there.value().text);
}

std::vector<std::string> RemoteList::column(int column) const {
  std::vector<std::string> texts;
  for (int row = 0; row < rows(); ++row) texts.push_back(text(row, column));
  return texts;
}

std::string RemoteList::header(int column) const {
  const HWND header = reinterpret_cast<HWND>(ask(list_, LVM_GETHEADER, 0, 0));
  HeaderText asked;
  Remote<HeaderText> there(process_, asked);
  asked.item.mask = HDI_TEXT;
  asked.item.cchTextMax = kTextLength;
  asked.item.pszText = reinterpret_cast<wchar_t*>(there.place() + offsetof(HeaderText, text));
  there.set(asked);
  ask(header, HDM_GETITEMW, static_cast<WPARAM>(column), there.parameter());
  return win32::narrow(there.value().text);
}

RECT RemoteList::bounds(int row) const {
  ask(list_, LVM_ENSUREVISIBLE, static_cast<WPARAM>(row), FALSE);
  RECT asked{};
  asked.left = LVIR_BOUNDS;
  Remote<RECT> there(process_, asked);
  ask(list_, LVM_GETITEMRECT, static_cast<WPARAM>(row), there.parameter());
  return there.value();
}

POINT RemoteList::onText(int row) const {
  const RECT area = bounds(row);
  return {area.left + kTextFromLeft, (area.top + area.bottom) / 2};
}

POINT RemoteList::onBox(int row) const {
  const RECT area = bounds(row);
  return {area.left + kBoxFromLeft, (area.top + area.bottom) / 2};
}

}  // namespace tavr::testing
