// The program's one rule for errors inside a procedure: a statement that fails
// is abandoned and the next one runs; a condition that fails counts as met.
// Nothing else catches.
#pragma once

#include <string>
#include <utility>

namespace tavr {

/// Error numbers of the runtime that the program itself raises or asks about.
inline constexpr int kErrInvalidCall = 5;
inline constexpr int kErrOverflow = 6;
inline constexpr int kErrSubscript = 9;
inline constexpr int kErrTypeMismatch = 13;
inline constexpr int kErrBadFileNumber = 52;
inline constexpr int kErrFileNotFound = 53;
inline constexpr int kErrFileAlreadyOpen = 55;
inline constexpr int kErrDiskFull = 61;
inline constexpr int kErrPastEnd = 62;
inline constexpr int kErrPermission = 70;
inline constexpr int kErrFileAccess = 75;
inline constexpr int kErrPathNotFound = 76;
inline constexpr int kErrNoObject = 91;
inline constexpr int kErrBadPattern = 93;
inline constexpr int kErrNoElement = 35600;

/// A runtime error: a statement could not be carried out.
struct RuntimeError {
  int number = 0;
  std::string description;
};

/// The process ends: unwinds through everything and is caught by main alone.
/// Deliberately no RuntimeError, so no statement swallows it.
struct ProcessEnd {};

/// The error mode of one procedure; make one at the head of it.
///   on.next([&] { ... });        a statement
///   if (on.met([&] { ... }))     a condition
/// The number of the last error stays until the procedure ends, as a
/// successful statement does not clear it.
class ResumeNext {
 public:
  template <class Statement>
  void next(Statement&& statement) {
    try {
      std::forward<Statement>(statement)();
    } catch (const RuntimeError& error) {
      last_ = error;
    }
  }

  template <class Condition>
  bool met(Condition&& condition) {
    try {
      return std::forward<Condition>(condition)();
    } catch (const RuntimeError& error) {
      last_ = error;
      return true;
    }
  }

  /// Number of the last error, 0 when there was none.
  int number() const { return last_.number; }
  const RuntimeError& last() const { return last_; }
  void clear() { last_ = {}; }

 private:
  RuntimeError last_;
};

}  // namespace tavr
