#include "simulated/Player.h"
#include "simulated/ScenarioError.h"

#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <optional>
#include <span>
#include <sstream>
#include <string>

namespace {

constexpr int played = 0;
constexpr int wrong = 2;

std::string everythingIn(std::istream& stream) {
    return {std::istreambuf_iterator<char>(stream), {}};
}

std::optional<std::string> contentsOf(const std::string& file) {
    if (file == "-")
        return everythingIn(std::cin);
    std::ifstream stream(file, std::ios::binary);
    if (!stream || std::filesystem::is_directory(file))
        return std::nullopt;
    return everythingIn(stream);
}

int play(const std::string& file, const std::string& scenario) {
    qbsp::simulated::Player player(std::cout);
    std::istringstream lines(scenario);
    std::size_t number = 0;
    for (std::string line; std::getline(lines, line);) {
        ++number;
        try {
            player.play(line);
        } catch (const qbsp::simulated::ScenarioError& error) {
            std::cout.flush();
            std::cerr << file << ':' << number << ": " << error.what() << '\n';
            return wrong;
        }
    }
    return played;
}

} // namespace

int main(int argc, char** argv) {
    std::ios::sync_with_stdio(false);
    const std::span arguments(argv, static_cast<std::size_t>(argc));
    if (arguments.size() != 2) {
        std::cerr << "usage: pane-replay FILE (or - for standard input)\n";
        return wrong;
    }
    const std::string file = arguments[1];
    const auto scenario = contentsOf(file);
    if (!scenario) {
        std::cerr << "pane-replay: cannot read " << file << '\n';
        return wrong;
    }
    return play(file, *scenario);
}
