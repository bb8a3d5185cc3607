// The rows of a list view of another process, as it shows them.
#pragma once

#include <windows.h>

#include <string>
#include <vector>

namespace tavr::testing {

class RemoteList {
 public:
  RemoteList(HANDLE process, HWND list) : process_(process), list_(list) {}

  int rows() const;
  std::string text(int row, int column = 0) const;
  /// All texts of a column.
  std::vector<std::string> column(int column = 0) const;
  std::string header(int column) const;
  /// Places for the mouse, in the list's own area. The row is brought in sight.
  POINT onText(int row) const;
  POINT onBox(int row) const;
  RECT bounds(int row) const;

 private:
  HANDLE process_;
  HWND list_;
};

}  // namespace tavr::testing
