// The fonts of the forms at one resolution, made when they are first asked for.
#pragma once

#include <windows.h>

#include <map>
#include <string>
#include <tuple>

#include "forms/control.h"

namespace tavr::win32 {

class Fonts {
 public:
  explicit Fonts(double scale) : scale_(scale) {}
  ~Fonts();
  Fonts(const Fonts&) = delete;
  Fonts& operator=(const Fonts&) = delete;

  /// Stays the owner of what it gives.
  HFONT get(const ControlFont& font, bool bold = false);

 private:
  using Key = std::tuple<std::string, std::string, int, bool, bool, bool>;

  double scale_;
  std::map<Key, HFONT> made_;
};

}  // namespace tavr::win32
