#include "scenario/Lines.h"
#include "scenario/ScenarioError.h"
#include "simulated/PaneCommands.h"
#include "simulated/Player.h"
#include "simulated/WorldCommands.h"

#include <iostream>
#include <iterator>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace {

constexpr int played = 0;
constexpr int wrong = 2;

int explain() {
    std::cout
        << "usage: pane-replay FILE\n"
           "\n"
           "Plays a scenario on a simulated platform and prints every operation that the pane asks of it.\n"
           "FILE may be - for standard input. -h and --help print this.\n"
           "\n"
           "World commands:\n"
        << qbsp::simulated::worldCommandList()
        << "\n"
           "Pane commands:\n"
        << qbsp::simulated::paneCommandList()
        << "\n"
           "Exit status:\n"
           "  0  played to the end\n"
           "  2  the command line or the scenario is wrong, and a line on standard error says how\n";
    return played;
}

int refuse(const std::string& problem) {
    std::cerr << "pane-replay: " << problem << '\n';
    return wrong;
}

std::optional<std::string> scenarioAt(const std::string& file) {
    if (file == "-")
        return std::string(std::istreambuf_iterator<char>(std::cin), {});
    return qbsp::scenario::contentsOf(file);
}

int play(qbsp::scenario::Lines lines) {
    qbsp::simulated::Player player(std::cout);
    try {
        while (const auto command = lines.nextCommand())
            player.play(*command);
    } catch (const qbsp::scenario::ScenarioError& error) {
        std::cout.flush();
        std::cerr << lines.place() << ": " << error.what() << '\n';
        return wrong;
    }
    return played;
}

bool isOption(std::string_view argument) {
    return argument.size() > 1 && argument.starts_with('-');
}

} // namespace

int main(int argc, char** argv) {
    std::ios::sync_with_stdio(false);
    const std::span arguments(argv, static_cast<std::size_t>(argc));
    if (arguments.size() < 2)
        return refuse("no scenario is named; --help says what there is");
    if (arguments.size() > 2)
        return refuse("one argument at the most; --help says what there is");
    const std::string argument = arguments[1];
    if (argument == "--help" || argument == "-h")
        return explain();
    if (isOption(argument))
        return refuse("unknown option '" + argument + "'; --help says what there is");
    const auto scenario = scenarioAt(argument);
    return scenario ? play({argument, *scenario}) : refuse("cannot read " + argument);
}
