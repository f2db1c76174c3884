#import "Commands.h"

#import "CommandParts.h"
#import "UserInput.h"

#include <algorithm>
#include <cstdint>
#include <iterator>

namespace quarrybook {

namespace {

constexpr std::int64_t deleteKey = 51;

void throwIfHidden(NSView* view, const std::string& name) {
    if ([view isHidden])
        throw ScenarioError("'" + name + "' is hidden");
}

} // namespace

const Commands::Command* Commands::find(const std::string& name) {
    static const Command all[] = {
        {"create", 0, "", &Commands::create},
        {"load-view", 0, "", &Commands::loadView},
        {"select", 0, "", &Commands::select},
        {"unselect", 0, "", &Commands::unselect},
        {"edit", 3, "COLUMN ROW VALUE", &Commands::edit},
        {"toggle", 0, "", &Commands::toggle},
        {"reset", 0, "", &Commands::reset},
        {"add", 0, "", &Commands::add},
        {"set", 2, "FIELD STATE", &Commands::set},
        {"change", 3, "clip|note CODE FLAGS", &Commands::change},
        {"offer", 3, "clip|note CODE FLAGS", &Commands::offer},
        {"value", 2, "COLUMN ROW", &Commands::value},
        {"rows", 0, "", &Commands::rows},
        {"find", 1, "NAME", &Commands::findName},
        {"state", 0, "", &Commands::state},
        {"press", 1, "TITLE", &Commands::press},
        {"choose", 1, "PATH", &Commands::choose},
        {"say", 1, "TEXT", &Commands::say},
        {"wait", 1, "SECONDS", &Commands::wait},
        {"until", 2, "FIELD TEXT", &Commands::until},
        {"resize", 2, "WIDTH HEIGHT", &Commands::resize},
        {"picture", 1, "FILE", &Commands::picture},
        {"close", 0, "", &Commands::close},
    };
    const auto* found = std::ranges::find(all, name, &Command::name);
    return found == std::end(all) ? nullptr : found;
}

void Commands::check(const std::vector<Argument>& words) const {
    const Command* command = words.front().quoted ? nullptr : find(words.front().text);
    if (command == nullptr)
        throw ScenarioError("unknown command '" + words.front().text + "'");
    if (words.size() != command->arguments + 1)
        throw ScenarioError("usage: " + (std::string(command->name) + " " + command->usage));
}

bool Commands::speaksForItself(const std::vector<Argument>& words) {
    return words.front().text == "say";
}

Outcome Commands::perform(const std::vector<Argument>& words) {
    const Arguments arguments(words.begin() + 1, words.end());
    return (this->*find(words.front().text)->action)(arguments);
}

#pragma mark - Finding things

PaneControls Commands::controls() const {
    if ([runner_ pane] == nil)
        throw ScenarioError("there is no pane yet");
    return PaneControls([[runner_ pane] mainView]);
}

NSButton* Commands::button(const std::string& field) const {
    id found = controls().named(field);
    if (![found isKindOfClass:[NSButton class]])
        throw ScenarioError("there is no button '" + field + "'");
    throwIfHidden(found, field);
    return found;
}

NSView* Commands::recorder(const Argument& which) const {
    if (which.text != "clip" && which.text != "note")
        throw ScenarioError("'" + which.text + "' is no recorder");
    NSView* found = controls().named(which.text + "HotKeyRecorder");
    throwIfHidden(found, which.text);
    return found;
}

NSTableColumn* Commands::column(const Argument& identifier) const {
    NSTableColumn* found = [controls().table() tableColumnWithIdentifier:string(identifier.text)];
    if (found == nil)
        throw ScenarioError("the table has no column '" + identifier.text + "'");
    return found;
}

NSInteger Commands::row(const Argument& argument) const {
    const long long number = wholeNumber(argument);
    if (number < 0 || number >= [controls().table() numberOfRows])
        throw ScenarioError("there is no row " + argument.text);
    return static_cast<NSInteger>(number);
}

void Commands::record(NSView* recorder, const Argument& code, const Argument& flags) const {
    const long long key = wholeNumber(code);
    const auto modifiers = static_cast<std::uint64_t>(wholeNumber(flags));
    click(recorder, NSMakePoint(12, NSMidY([recorder bounds])));
    if (!pressKey([recorder window], key == -1 ? deleteKey : key, modifiers))
        throw ScenarioError("no keyboard here has the key " + code.text);
}

} // namespace quarrybook
