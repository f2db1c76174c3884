#pragma once

#include <stdexcept>

namespace qbsp::simulated {

/// What is wrong with a line of a scenario.
class ScenarioError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

} // namespace qbsp::simulated
