// A trace of the procedures of the file search, read only by the error
// reporter.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tavr {

class CallStack {
 public:
  /// Notes a call for as long as the returned object lives.
  class Call {
   public:
    ~Call() { stack_.records_.pop_back(); }
    Call(const Call&) = delete;
    Call& operator=(const Call&) = delete;

   private:
    friend class CallStack;
    explicit Call(CallStack& stack) : stack_(stack) {}
    CallStack& stack_;
  };

  [[nodiscard]] Call enter(std::string_view module, std::string_view procedure,
                           std::string first = {}, std::string second = {}) {
    records_.push_back({module, procedure, std::move(first), std::move(second)});
    return Call(*this);
  }

  std::size_t depth() const { return records_.size(); }

  /// One line a record, from the newest back to the oldest: module, ".",
  /// procedure, " " and the two parameter texts.
  std::string text() const {
    std::string out;
    for (auto record = records_.rbegin(); record != records_.rend(); ++record) {
      out += std::string(record->module) + "." + std::string(record->procedure) + " " +
             record->first + record->second + "\r\n";
    }
    return out;
  }

 private:
  struct Record {
    std::string_view module;
    std::string_view procedure;
    std::string first;
    std::string second;
  };
  std::vector<Record> records_;
};

}  // namespace tavr
