// Where Wine answers otherwise than Windows, so that a contract test can only
// fail there: the tests by name, each with its reason.
#pragma once

#include <string>
#include <string_view>

namespace tavr::contract {

/// This process runs under Wine.
bool onWine();

/// The reason why the test cannot hold under Wine; "" when it can.
std::string wineDifference(std::string_view test);

}  // namespace tavr::contract
