#import "Commands.h"

#import "CommandParts.h"
#import "UserInput.h"

#include <cstdint>
#include <tuple>

namespace quarrybook {

namespace {

constexpr std::int64_t escapeKey = 53;

int flagOf(const Argument& argument) {
    if (argument.text == "true" || argument.text == "false")
        return argument.text == "true" ? 1 : 0;
    return wholeNumber(argument) == 1 ? 1 : 0;
}

} // namespace

#pragma mark - The pane

Outcome Commands::create(const Arguments&) {
    std::ignore = [runner_ mainView];
    return answer([runner_ pane] == nil ? "false" : "true");
}

Outcome Commands::loadView(const Arguments&) {
    if ([runner_ mainView] == nil)
        throw ScenarioError("there is no pane");
    return {};
}

Outcome Commands::select(const Arguments&) {
    pressButton([preferences_ sorterButton]);
    return after(timeForWindows);
}

Outcome Commands::unselect(const Arguments&) {
    pressButton([preferences_ generalButton]);
    return after(timeForWindows);
}

#pragma mark - Its controls

Outcome Commands::edit(const Arguments& arguments) {
    NSTableView* table = controls().table();
    NSTableColumn* edited = column(arguments[0]);
    const NSInteger editedRow = row(arguments[1]);
    const int wanted = flagOf(arguments[2]);
    [table scrollRowToVisible:editedRow];
    const auto columnIndex = static_cast<NSInteger>([[table tableColumns] indexOfObject:edited]);
    const NSRect cell = [table frameOfCellAtColumn:columnIndex row:editedRow];
    const NSPoint middle = NSMakePoint(NSMidX(cell), NSMidY(cell));
    click(table, middle);
    if ([[edited identifier] isEqual:@"2"] && cellValue(table, edited, editedRow) != std::to_string(wanted))
        click(table, middle);
    return {};
}

Outcome Commands::toggle(const Arguments&) {
    pressButton(button("toggleLaunchButton"));
    return {};
}

Outcome Commands::reset(const Arguments&) {
    pressButton(button("resetFullscreenSettingsButton"));
    return {};
}

Outcome Commands::add(const Arguments&) {
    pressButton(button("addButton"));
    return {.answer = {}, .pause = timeForWindows, .condition = [] { return [NSApp modalWindow] != nil; }};
}

Outcome Commands::set(const Arguments& arguments) {
    NSButton* box = button(arguments[0].text);
    const auto wanted = static_cast<NSInteger>(wholeNumber(arguments[1]));
    for (int clicks = 0;[box state] != wanted; ++clicks) {
        if (clicks == 2)
            throw ScenarioError("a click does not bring '" + arguments[0].text + "' into that state");
        pressButton(box);
    }
    return {};
}

Outcome Commands::change(const Arguments& arguments) {
    record(recorder(arguments[0]), arguments[1], arguments[2]);
    return {};
}

Outcome Commands::offer(const Arguments& arguments) {
    NSView* offered = recorder(arguments[0]);
    record(offered, arguments[1], arguments[2]);
    const std::string reason = [[[offered valueForKey:@"reasonField"] stringValue] UTF8String];
    const bool listens = [[offered valueForKey:@"isListening"] boolValue];
    if (listens)
        std::ignore = pressKey([offered window], escapeKey, 0);
    return answer("[" + std::string(listens ? "true" : "false") + ", " +
                  (reason.empty() ? "null" : quoted(reason)) + "]");
}

#pragma mark - What they show

Outcome Commands::value(const Arguments& arguments) {
    return answer(cellValue(controls().table(), column(arguments[0]), row(arguments[1])));
}

Outcome Commands::rows(const Arguments&) {
    return answer(std::to_string([controls().table() numberOfRows]));
}

Outcome Commands::findName(const Arguments& arguments) {
    NSTableView* table = controls().table();
    NSTableColumn* names = [table tableColumnWithIdentifier:@"1"];
    for (NSInteger index = 0; index < [table numberOfRows]; ++index) {
        NSString* name = [[table dataSource] tableView:table objectValueForTableColumn:names row:index];
        if ([name caseInsensitiveCompare:string(arguments[0].text)] == NSOrderedSame)
            return answer(std::to_string(index));
    }
    return answer("-1");
}

Outcome Commands::state(const Arguments&) {
    Outcome outcome;
    for (const std::string& name : PaneControls::names())
        outcome.answer.push_back(name + ": " + controls().description(name));
    return outcome;
}

} // namespace quarrybook
