#pragma once

#include "Outcome.h"
#import "Scene.h"
#include "scenario/Words.h"

#include <functional>
#include <string_view>

namespace quarrybook {

/// What a command does after it was read completely: it acts on the real window as a user would. Throws
/// qbsp::scenario::ScenarioError when that is not possible now.
using Action = std::function<Outcome()>;

/// Whether the transcript shows the command above its output.
enum class Echo { shown, hidden };

/// A command of a scenario. Its reader takes the arguments, and throws qbsp::scenario::ScenarioError when
/// they are malformed, before anything is done. The scene must outlive the action.
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
