#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <ostream>
#include <string>

namespace qbsp::contracts {

/// One of the platforms that a contract is held against, and how a fresh stage is made on it.
template <class Stage>
struct Side {
    std::string name;
    std::unique_ptr<Stage> (*makeStage)();

    friend void PrintTo(const Side& side, std::ostream* stream) { *stream << side.name; }
};

/// A test of what an interface promises. The stage offers the service, arranges what it meets, and looks at
/// it from outside.
template <class Stage>
class Contract : public testing::TestWithParam<Side<Stage>> {
protected:
    const std::unique_ptr<Stage> stage = this->GetParam().makeStage();
};

template <class Stage>
auto onBothSides() {
    return testing::Values(Side<Stage>{"Simulated", &Stage::simulated},
                           Side<Stage>{"AppKit", &Stage::appKit});
}

/// For what the simulation leaves to the program that drives it.
template <class Stage>
auto onAppKit() {
    return testing::Values(Side<Stage>{"AppKit", &Stage::appKit});
}

inline constexpr auto nameOfSide = [](const auto& test) {
    return test.param.name;
};

} // namespace qbsp::contracts
