#pragma once

#include "scenario/ScenarioError.h"

#include <string>

namespace qbsp::scenario {

/// What is said of a line that is wrong; empty when it is taken.
template <class Take>
std::string refused(Take take) {
    try {
        static_cast<void>(take());
    } catch (const ScenarioError& error) {
        return error.what();
    }
    return "";
}

} // namespace qbsp::scenario
