// What a scenario says has changed in a tree, and how what really changed is
// told to a reader.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "tests/machine/scenario.h"
#include "tests/machine/tree_image.h"

namespace tavr::testing {

/// Applies the scenario's "== after ==" to the tree before it; what could not be
/// applied, one line each.
std::vector<std::string> applyChanges(const Ground& ground, const Scenario& scenario,
                                      TreeImage& tree);

/// Readable lines: each path that differs, and how.
std::vector<std::string> differences(const TreeImage& expected, const TreeImage& actual);

/// The lines of one text against those of another, "-" and "+"; common lines at
/// both ends are left out.
std::vector<std::string> lineDifferences(std::string_view expected, std::string_view actual);

/// Such lines as a test's message shows them, one below the other.
std::string joined(const std::vector<std::string>& lines);

}  // namespace tavr::testing
