// Traces of the ten browsers in numbers that a test chooses, all found by one
// shared selection: cookies, selection "52". Test and Erase find the same.
#pragma once

#include <array>
#include <string_view>

#include "tests/support/test_machine.h"

namespace tavr::testing {

/// The browser rows' labels, in the order of the groups.
inline constexpr std::array<std::string_view, 10> kBrowserLabels = {"Internet Explorer Browser",
                                                                    "Firefox Browser",
                                                                    "Google chrome Browser",
                                                                    "Opera Browser",
                                                                    "Microsoft Edge Browser",
                                                                    "Yandex Browser",
                                                                    "Vivaldi Browser",
                                                                    "Brave Browser",
                                                                    "Torch Browser",
                                                                    "Maxthon Browser"};

inline constexpr std::string_view kCookieSelection = "52";

/// `count` files of `size` bytes where browser `group` (0 to 9) keeps what the
/// selection "52" finds.
void addCookies(TestMachine& machine, int group, int count, std::size_t size = 1);

/// Browser i has i + 1 such files: every group's count is another.
void addDistinctCookies(TestMachine& machine);

}  // namespace tavr::testing
