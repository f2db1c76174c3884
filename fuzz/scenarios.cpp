// Any text is either refused with a message, or played; and it is played the same way each time.

#include "Input.h"
#include "Require.h"
#include "scenario/Json.h"
#include "scenario/Lines.h"
#include "scenario/ScenarioError.h"
#include "simulated/Player.h"

#include <cstddef>
#include <cstdint>
#include <sstream>
#include <string>

namespace qbsp::fuzz {

namespace {

/// The transcript, and the message when the scenario is refused.
struct Performance {
    std::string transcript;
    std::string refusal;
    friend bool operator==(const Performance&, const Performance&) = default;
};

Performance performanceOf(const std::string& scenario) {
    std::ostringstream output;
    std::string refusal;
    scenario::Lines lines("fuzz", scenario);
    simulated::Player player(output);
    try {
        while (const auto command = lines.nextCommand())
            player.play(*command);
    } catch (const scenario::ScenarioError& error) {
        refusal = error.what();
        require(!refusal.empty(), "a refusal has a message");
    }
    return {output.str(), refusal};
}

} // namespace

} // namespace qbsp::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace qbsp::fuzz;
    const std::string scenario(textOf(data, size));
    const auto first = performanceOf(scenario);
    require(qbsp::scenario::isUtf8(first.transcript), "a transcript is UTF-8");
    require(performanceOf(scenario) == first, "a scenario is played the same way each time");
    return 0;
}
