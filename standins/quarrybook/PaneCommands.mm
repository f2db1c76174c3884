#import "PaneCommands.h"

#import "Strings.h"
#import "UserInput.h"
#include "scenario/Json.h"
#include "scenario/ScenarioError.h"

#include <array>
#include <cstdint>
#include <optional>
#include <tuple>

namespace quarrybook {

using qbsp::scenario::jsonArray;
using qbsp::scenario::jsonBoolean;
using qbsp::scenario::jsonText;
using qbsp::scenario::jsonTextOrNull;
using qbsp::scenario::ScenarioError;
using qbsp::scenario::Words;

namespace {

#pragma mark - The pane

Outcome create(const Scene& scene) {
    std::ignore = [scene.runner() mainView];
    return result(jsonBoolean([scene.runner() pane] != nil));
}

Outcome loadView(const Scene& scene) {
    if ([scene.runner() mainView] == nil)
        throw ScenarioError("there is no pane");
    return {};
}

Outcome select(const Scene& scene) {
    pressButton([scene.preferences() sorterButton]);
    return after(timeForWindows);
}

Outcome unselect(const Scene& scene) {
    pressButton([scene.preferences() generalButton]);
    return after(timeForWindows);
}

#pragma mark - Its buttons

Outcome toggle(const Scene& scene) {
    pressButton(scene.button(field::toggleLaunchButton));
    return {};
}

Outcome reset(const Scene& scene) {
    pressButton(scene.button(field::resetFullscreenSettingsButton));
    return {};
}

Outcome add(const Scene& scene) {
    pressButton(scene.button(field::addButton));
    return {.lines = {}, .pause = timeForWindows, .condition = [] {
                return [NSApp modalWindow] != nil;
            }};
}

Outcome set(const Scene& scene, const std::string& name, NSInteger wanted) {
    NSButton* box = scene.button(name);
    for (int clicks = 0;[box state] != wanted; ++clicks) {
        if (clicks == 2)
            throw ScenarioError("clicks do not set that state: " + jsonText(name));
        pressButton(box);
    }
    return {};
}

Action readSet(Words& arguments, const Scene& scene) {
    const std::string name = arguments.text();
    const NSInteger wanted = std::stoi(arguments.oneOf({"1", "0", "-1"}));
    return [=, &scene] {
        return set(scene, name, wanted);
    };
}

#pragma mark - Its table

Outcome edit(const Scene& scene, NSTableColumn* column, NSInteger row, bool wanted) {
    NSTableView* table = scene.controls().table();
    [table scrollRowToVisible:row];
    const auto columnIndex = static_cast<NSInteger>([[table tableColumns] indexOfObject:column]);
    const NSRect cell = [table frameOfCellAtColumn:columnIndex row:row];
    const NSPoint middle = NSMakePoint(NSMidX(cell), NSMidY(cell));
    // The first click may only select the row.
    click(table, middle);
    if ([[column identifier] isEqual:flagColumn] && cellValue(table, column, row) != (wanted ? "1" : "0"))
        click(table, middle);
    return {};
}

Action readEdit(Words& arguments, const Scene& scene) {
    const std::string column = arguments.text();
    const std::int32_t row = arguments.signed32();
    const std::string value = arguments.oneOf({"true", "false", "1", "0"});
    const bool wanted = value == "true" || value == "1";
    return [=, &scene] {
        return edit(scene, scene.column(column), scene.row(row), wanted);
    };
}

Action readValue(Words& arguments, const Scene& scene) {
    const std::string column = arguments.text();
    const std::int32_t row = arguments.signed32();
    return [=, &scene] {
        return result(cellValue(scene.controls().table(), scene.column(column), scene.row(row)));
    };
}

Outcome rows(const Scene& scene) {
    return result(std::to_string([scene.controls().table() numberOfRows]));
}

Outcome find(const Scene& scene, NSString* wanted) {
    NSTableView* table = scene.controls().table();
    NSTableColumn* names = [table tableColumnWithIdentifier:nameColumn];
    for (NSInteger index = 0; index < [table numberOfRows]; ++index) {
        NSString* name = [[table dataSource] tableView:table objectValueForTableColumn:names row:index];
        if ([name caseInsensitiveCompare:wanted] == NSOrderedSame)
            return result(std::to_string(index));
    }
    return result("-1");
}

Action readFind(Words& arguments, const Scene& scene) {
    const std::string name = arguments.text();
    return [=, &scene] {
        return find(scene, string(name));
    };
}

#pragma mark - Its recorders

constexpr std::int64_t escapeKey = 53;
constexpr std::int64_t deleteKey = 51;

/// A key press in a recorder.
struct Press {
    std::string recorder;
    std::int64_t code = 0; ///< -1 presses the key that clears the combination
    std::uint64_t flags = 0;
};

Press readPress(Words& arguments) {
    Press press;
    press.recorder = arguments.oneOf({"clip", "note"});
    press.code = arguments.signed64();
    press.flags = arguments.unsigned64();
    return press;
}

void pressIn(NSView* recorder, const Press& press) {
    click(recorder, NSMakePoint(12, NSMidY([recorder bounds])));
    if (!pressKey([recorder window], press.code == -1 ? deleteKey : press.code, press.flags))
        throw ScenarioError("no keyboard here has the key " + std::to_string(press.code));
}

Action readChange(Words& arguments, const Scene& scene) {
    const Press press = readPress(arguments);
    return [=, &scene] {
        pressIn(scene.recorder(press.recorder), press);
        return Outcome{};
    };
}

Outcome offer(NSView* recorder, const Press& press) {
    pressIn(recorder, press);
    const std::string reason = [[[recorder valueForKey:@"reasonField"] stringValue] UTF8String];
    const bool listens = [[recorder valueForKey:@"isListening"] boolValue];
    if (listens)
        std::ignore = pressKey([recorder window], escapeKey, 0);
    const auto shown = reason.empty() ? std::nullopt : std::optional(reason);
    return result(jsonArray({jsonBoolean(listens), jsonTextOrNull(shown)}));
}

Action readOffer(Words& arguments, const Scene& scene) {
    const Press press = readPress(arguments);
    return [=, &scene] {
        return offer(scene.recorder(press.recorder), press);
    };
}

#pragma mark - All controls

Outcome state(const Scene& scene) {
    Outcome outcome;
    const PaneControls controls = scene.controls();
    for (const std::string& name : controls.names())
        outcome.lines.push_back(name + ": " + controls.description(name));
    return outcome;
}

} // namespace

std::span<const Command> paneCommands() {
    static constexpr auto all = std::to_array<Command>({
        {"create", "", readNothing<create>},
        {"load-view", "", readNothing<loadView>},
        {"select", "", readNothing<select>},
        {"unselect", "", readNothing<unselect>},
        {"toggle", "", readNothing<toggle>},
        {"reset", "", readNothing<reset>},
        {"add", "", readNothing<add>},
        {"set", "FIELD 1|0|-1", readSet},
        {"edit", "COLUMN ROW true|false|1|0", readEdit},
        {"value", "COLUMN ROW", readValue},
        {"rows", "", readNothing<rows>},
        {"find", "NAME", readFind},
        {"change", "clip|note CODE FLAGS", readChange},
        {"offer", "clip|note CODE FLAGS", readOffer},
        {"state", "", readNothing<state>},
    });
    return all;
}

} // namespace quarrybook
