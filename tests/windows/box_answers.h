// A person who answers message boxes.
#pragma once

#include <atomic>
#include <string>
#include <thread>
#include <utility>
#include <vector>

namespace tavr::windows_test {

/// Looks for the boxes of other processes, and presses Yes or No in them: what
/// the first text says that stands in the box's own, "" standing in any, all
/// without case. A box that none of them fits is left alone.
class BoxAnswers {
 public:
  using Answers = std::vector<std::pair<std::wstring, bool>>;  // lower-cased text, Yes

  explicit BoxAnswers(Answers answers);
  ~BoxAnswers();
  BoxAnswers(const BoxAnswers&) = delete;
  BoxAnswers& operator=(const BoxAnswers&) = delete;

 private:
  std::atomic<bool> stop_ = false;
  std::thread thread_;
};

}  // namespace tavr::windows_test
