#pragma once

#include "platform/Value.h"
#include "scenario/Words.h"

#include <optional>
#include <string>

// Arguments that only the pane's scenarios have. Each operation takes its argument from the front of the
// words and throws scenario::ScenarioError when there is none left or it is malformed.

namespace qbsp::simulated {

/// An identifier, or the word full, solo or embedded for one of the Sorters.
[[nodiscard]] std::string takeIdentifier(scenario::Words& words);

/// An identifier as above, or the word null.
[[nodiscard]] std::optional<std::string> takeIdentifierOrNull(scenario::Words& words);

/// The whole rest of the line as a property-list value; no value for null.
[[nodiscard]] platform::Value takeValue(scenario::Words& words);

} // namespace qbsp::simulated
