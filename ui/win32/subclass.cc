#include "ui/win32/subclass.h"

#include <algorithm>
#include <unordered_map>
#include <vector>

namespace tavr::win32 {

namespace {

struct Entry {
  SUBCLASSPROC procedure;  ///< null: removed while messages were served
  UINT_PTR id;
  DWORD_PTR data;
};

struct Chain {
  WNDPROC own = nullptr;       ///< the window's own procedure
  std::vector<Entry> entries;  ///< each keeps its place while messages are served
  std::size_t behind = 0;      ///< how many stand behind the one that runs
  int serving = 0;             ///< messages within messages
  bool gone = false;           ///< the window has had its last message
};

std::unordered_map<HWND, Chain>& chains() {
  static std::unordered_map<HWND, Chain> all;
  return all;
}

auto entryOf(Chain& chain, SUBCLASSPROC procedure, UINT_PTR id) {
  return std::ranges::find_if(chain.entries, [&](const Entry& entry) {
    return entry.procedure == procedure && entry.id == id;
  });
}

LRESULT call(Chain& chain, std::size_t level, HWND window, UINT message, WPARAM wparam,
             LPARAM lparam) {
  while (level > 0 && chain.entries[level - 1].procedure == nullptr) --level;
  if (level == 0) return CallWindowProcW(chain.own, window, message, wparam, lparam);
  const Entry entry = chain.entries[level - 1];
  const std::size_t before = chain.behind;
  chain.behind = level - 1;
  const LRESULT answer = entry.procedure(window, message, wparam, lparam, entry.id, entry.data);
  chain.behind = before;
  return answer;
}

LRESULT CALLBACK firstProcedure(HWND window, UINT message, WPARAM wparam, LPARAM lparam);

// Somebody else's procedure may stand before ours and call it: then it stays.
void tidy(HWND window, Chain& chain) {
  std::erase_if(chain.entries, [](const Entry& entry) { return entry.procedure == nullptr; });
  if (chain.gone) {
    chains().erase(window);
    return;
  }
  const auto first = reinterpret_cast<LONG_PTR>(&firstProcedure);
  if (!chain.entries.empty() || GetWindowLongPtrW(window, GWLP_WNDPROC) != first) return;
  SetWindowLongPtrW(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(chain.own));
  chains().erase(window);
}

LRESULT CALLBACK firstProcedure(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
  const auto found = chains().find(window);
  if (found == chains().end()) return DefWindowProcW(window, message, wparam, lparam);
  Chain& chain = found->second;
  ++chain.serving;
  const LRESULT answer = call(chain, chain.entries.size(), window, message, wparam, lparam);
  if (message == WM_NCDESTROY) chain.gone = true;
  if (--chain.serving == 0) tidy(window, chain);
  return answer;
}

}  // namespace

void setSubclass(HWND window, SUBCLASSPROC procedure, UINT_PTR id, DWORD_PTR data) {
  if (!IsWindow(window)) return;
  Chain& chain = chains()[window];
  if (chain.own == nullptr) {
    chain.own = reinterpret_cast<WNDPROC>(
        SetWindowLongPtrW(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&firstProcedure)));
  }
  if (const auto entry = entryOf(chain, procedure, id); entry != chain.entries.end()) {
    entry->data = data;
    return;
  }
  chain.entries.push_back({procedure, id, data});
}

void removeSubclass(HWND window, SUBCLASSPROC procedure, UINT_PTR id) {
  const auto found = chains().find(window);
  if (found == chains().end()) return;
  Chain& chain = found->second;
  const auto entry = entryOf(chain, procedure, id);
  if (entry == chain.entries.end()) return;
  entry->procedure = nullptr;
  if (chain.serving == 0) tidy(window, chain);
}

LRESULT nextProcedure(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
  const auto found = chains().find(window);
  if (found == chains().end()) return DefWindowProcW(window, message, wparam, lparam);
  return call(found->second, found->second.behind, window, message, wparam, lparam);
}

}  // namespace tavr::win32
