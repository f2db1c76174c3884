#include "simulated/Player.h"

#include "scenario/ScenarioError.h"
#include "scenario/Words.h"
#include "simulated/Json.h"
#include "simulated/PaneCommands.h"
#include "simulated/WorldCommands.h"

namespace qbsp::simulated {

void Player::play(std::string_view command) {
    scenario::Words arguments(command);
    const std::string name = arguments.word();
    if (const auto change = readWorldCommand(name, arguments)) {
        (*change)(platform_.world);
        return;
    }
    const auto action = readPaneCommand(name, arguments, session_);
    if (!action)
        throw scenario::ScenarioError("unknown command: " + jsonText(name));
    output_ << "> " << command << '\n';
    const auto answer = (*action)();
    flush();
    if (answer)
        output_ << "= " << *answer << '\n';
}

void Player::flush() {
    for (const std::string& line : platform_.transcript.take())
        output_ << line << '\n';
}

} // namespace qbsp::simulated
