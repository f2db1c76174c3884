#include "simulated/Player.h"

#include "simulated/Json.h"
#include "simulated/PaneCommands.h"
#include "simulated/ScenarioError.h"
#include "simulated/WorldCommands.h"

namespace qbsp::simulated {

namespace {

std::string_view withoutOuterSpaces(std::string_view line) {
    const auto first = line.find_first_not_of(' ');
    return first == std::string_view::npos ? "" : line.substr(first, line.find_last_not_of(' ') - first + 1);
}

} // namespace

void Player::play(std::string_view line) {
    if (!isUtf8(line))
        throw ScenarioError("not UTF-8");
    const std::string_view command = withoutOuterSpaces(line);
    if (command.empty() || command.starts_with('#'))
        return;
    Arguments arguments(command);
    const std::string name = arguments.word();
    if (const auto change = readWorldCommand(name, arguments)) {
        (*change)(platform_.world);
        return;
    }
    const auto action = readPaneCommand(name, arguments, session_);
    if (!action)
        throw ScenarioError("unknown command: " + jsonText(name));
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
