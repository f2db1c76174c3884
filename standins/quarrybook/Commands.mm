#import "Commands.h"

#import "PaneCommands.h"
#import "WindowCommands.h"
#include "scenario/CommandTable.h"
#include "scenario/Json.h"
#include "scenario/ScenarioError.h"

namespace quarrybook {

using qbsp::scenario::findCommand;

namespace {

const Command& commandNamed(const std::string& name) {
    for (const auto commands : {paneCommands(), windowCommands()})
        if (const Command* const command = findCommand(commands, name))
            return *command;
    throw qbsp::scenario::ScenarioError("unknown command: " + qbsp::scenario::jsonText(name));
}

} // namespace

ReadCommand readCommand(std::string_view line, const Scene& scene) {
    qbsp::scenario::Words words(line);
    const std::string name = words.word();
    const Command& command = commandNamed(name);
    ReadCommand read{.echo = command.echo, .action = command.read(words, scene)};
    words.finish();
    return read;
}

std::string commandList() {
    return qbsp::scenario::commandList(paneCommands()) + qbsp::scenario::commandList(windowCommands());
}

} // namespace quarrybook
