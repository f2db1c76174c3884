#pragma once

#include <stdexcept>

namespace qbsp::scenario {

/// What is wrong with a line of a scenario, in words for whoever wrote it.
class ScenarioError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

} // namespace qbsp::scenario
