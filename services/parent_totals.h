// The link through which the program reports its totals to a parent program: a
// text in a named mapping of 256 bytes, and a message that says so.
#pragma once

#include <memory>
#include <string_view>

#include "platform/machine.h"

namespace tavr {

class ParentTotals {
 public:
  explicit ParentTotals(Machine& machine) : machine_(machine) {}

  /// Puts the text into the mapping and tells the parent's window. Without a
  /// mapping or a view nothing is sent. Ends the process when there is no such
  /// window: nobody waits for the totals any more.
  void send(std::string_view text);

 private:
  void notify(WindowHandle window, MappingView& view);

  Machine& machine_;
};

}  // namespace tavr
