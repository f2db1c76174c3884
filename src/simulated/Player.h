#pragma once

#include "simulated/PaneSession.h"

#include <ostream>
#include <string_view>

namespace qbsp::simulated {

/// Plays a scenario on a platform of its own and prints the transcript as it comes.
class Player {
public:
    explicit Player(std::ostream& output) : output_(output) {}

    /// Plays a command, which is a line without outer spaces. Throws scenario::ScenarioError, with nothing of
    /// the line printed or sent, when it is wrong.
    void play(std::string_view command);

private:
    void flush();

    std::ostream& output_;
    SimulatedPlatform platform_;
    PaneSession session_{platform_};
};

} // namespace qbsp::simulated
