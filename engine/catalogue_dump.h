// The catalogue as text: line by line for the check against the hand-kept
// transcription, and as the page docs/catalogue.md for people.
#pragma once

#include <string>

namespace tavr {

/// One line an item, fields separated by tabs.
std::string catalogueLines();

/// docs/catalogue.md.
std::string cataloguePage();

}  // namespace tavr
