// The process's surroundings: variables, its own place and its arguments.
#pragma once

#include <string>
#include <string_view>

namespace tavr {

class Environment {
 public:
  virtual ~Environment() = default;
  /// The variable's text, "" when absent. Names compare without case.
  virtual std::string get(std::string_view name) = 0;
  /// ExpandEnvironmentStrings: %name% references replaced, once; an unknown one
  /// stays, and its last "%" may begin the next. The text ends at a NUL; the
  /// result carries none.
  virtual std::string expand(std::string_view text) = 0;
  /// The program's folder, without a trailing "\".
  virtual std::string appPath() = 0;
  /// The program file's name without its extension.
  virtual std::string exeName() = 0;
};

}  // namespace tavr
