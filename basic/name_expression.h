// What the file system makes of "*", "?" and "." in a name pattern, and its match.
// Both machines match names themselves; they differ in what a unit is equal to.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <utility>

namespace tavr {

/// `Char` is a UTF-16 unit.
template <class Char>
class NameExpression {
 public:
  /// No name is longer, so a longer expression of single characters matches none.
  static constexpr std::size_t kMaxSize = 512;

  NameExpression() = default;
  /// A pattern that ended in "*." asks for names without extension; it comes here
  /// without that dot.
  explicit NameExpression(std::basic_string<Char> pattern, bool ended_in_dot = false)
      : units_(std::move(pattern)) {
    for (std::size_t i = 0; i < units_.size(); ++i) {
      Char& unit = units_[i];
      const bool behind = i > 0;
      if (unit == '.' && behind && units_[i - 1] == kAnyRun) units_[i - 1] = kDosStar;
      if (unit != '?' && unit != kAnyRun) continue;
      if (behind && units_[i - 1] == '.') units_[i - 1] = kDosDot;
      if (unit == '?') unit = kDosMark;
    }
    if (ended_in_dot && units_.ends_with(kAnyRun)) units_.back() = kDosStar;
  }

  const std::basic_string<Char>& units() const { return units_; }

  /// One name against the expression, unit for unit. Takes time in proportion to
  /// the two lengths' product at worst.
  class Walk {
   public:
    explicit Walk(const NameExpression& expression) : units_(expression.units_) {
      if (units_.size() <= kMaxSize) now_->add(0);
    }
    Walk(const Walk&) = delete;
    Walk& operator=(const Walk&) = delete;

    /// False: no more units lead to a match.
    template <class Same = std::equal_to<>>
    bool take(Char unit, bool last_dot, Same same = {}) {
      next_->clear();
      std::size_t walked = 0;  // one behind the last place already walked
      for (const std::size_t at : *now_) {
        if (at >= walked) walked = takeFrom(at, unit, last_dot, same) + 1;
      }
      std::swap(now_, next_);
      return !now_->empty();
    }
    /// The units so far are a whole name that matches.
    bool matches() const {
      for (const std::size_t at : *now_) {
        if (canEnd(at)) return true;
      }
      return false;
    }

   private:
    // Places in the expression that the units so far can have led to, ascending.
    class Places {
     public:
      void add(std::size_t place) {
        if (count_ == 0 || items_[count_ - 1] != place) {
          items_[count_++] = static_cast<std::uint16_t>(place);
        }
      }
      void clear() { count_ = 0; }
      bool empty() const { return count_ == 0; }
      const std::uint16_t* begin() const { return items_.data(); }
      const std::uint16_t* end() const { return items_.data() + count_; }

     private:
      std::array<std::uint16_t, kMaxSize + 2> items_;
      std::size_t count_ = 0;
    };

    // Answers where it stopped, so that a later place below that need not be walked
    // again.
    template <class Same>
    std::size_t takeFrom(std::size_t at, Char unit, bool last_dot, Same same) {
      for (; at < units_.size(); ++at) {
        switch (units_[at]) {
          case kAnyRun:
            next_->add(at);
            continue;
          case kDosStar:
            if (!last_dot) next_->add(at);
            continue;
          case kDosMark:
            if (unit == '.') continue;
            next_->add(at + 1);
            return at;
          case kDosDot:
            if (unit == '.') next_->add(at + 1);
            return at;
          default:
            if (same(unit, units_[at])) next_->add(at + 1);
            return at;
        }
      }
      return at;
    }
    bool canEnd(std::size_t at) const {
      for (; at < units_.size(); ++at) {
        const Char unit = units_[at];
        if (unit != kAnyRun && unit != kDosStar && unit != kDosMark && unit != kDosDot) {
          return false;
        }
      }
      return true;
    }

    std::basic_string_view<Char> units_;
    Places lists_[2];
    Places* now_ = &lists_[0];
    Places* next_ = &lists_[1];
  };

 private:
  // "*" takes any run of characters; the three others are what Windows makes of
  // patterns written for names with one extension.
  static constexpr Char kAnyRun = '*';
  static constexpr Char kDosStar = '<';  // a run up to the last dot of the name
  static constexpr Char kDosMark = '>';  // one character, none before a dot or at the end
  static constexpr Char kDosDot = '"';   // a dot, or nothing at the end

  std::basic_string<Char> units_;
};

}  // namespace tavr
