#pragma once

#include "Outcome.h"
#import "Scene.h"
#include "scenario/Words.h"

#include <functional>
#include <string_view>

namespace quarrybook {

/// What a command does once it was read whole, in the real window as a user would do it. Throws
/// qbsp::scenario::ScenarioError when it cannot be done now.
using Action = std::function<Outcome()>;

/// Whether the transcript has the command above what it prints.
enum class Echo { shown, hidden };

/// A command of a scenario. Its reader takes the arguments and throws qbsp::scenario::ScenarioError when they
/// are malformed; nothing was done then. The scene outlives the action.
struct Command {
    std::string_view name;
    std::string_view arguments;
    Action (*read)(qbsp::scenario::Words& arguments, const Scene& scene);
    Echo echo = Echo::shown;
};

/// The reader of a command without arguments.
template <Outcome (*Do)(const Scene&)>
[[nodiscard]] Action readNothing(qbsp::scenario::Words&, const Scene& scene) {
    return [&scene] {
        return Do(scene);
    };
}

} // namespace quarrybook
