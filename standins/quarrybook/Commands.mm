#import "Commands.h"

#import "Picture.h"
#import "UserInput.h"

#include <algorithm>
#include <iterator>
#include <tuple>

namespace quarrybook {

namespace {

constexpr std::int64_t deleteKey = 51;
constexpr std::int64_t escapeKey = 53;
constexpr double timeForWindows = 0.1;

NSString* string(const std::string& text) {
    return [NSString stringWithUTF8String:text.c_str()];
}

template <class View, class Matches> View* findView(NSView* view, Matches matches) {
    if ([view isKindOfClass:[View class]] && matches(static_cast<View*>(view)))
        return static_cast<View*>(view);
    for (NSUInteger index = 0; index < [[view subviews] count]; ++index)
        if (View* found = findView<View>([[view subviews] objectAtIndex:index], matches))
            return found;
    return nil;
}

Outcome answer(std::string line) {
    return {.answer = {"= " + std::move(line)}, .pause = 0, .condition = {}};
}

Outcome after(double pause) {
    return {.answer = {}, .pause = pause, .condition = {}};
}

void throwIfHidden(NSView* view, const std::string& name) {
    if ([view isHidden])
        throw ScenarioError("'" + name + "' is hidden");
}

bool chooseInLastColumn(NSBrowser* browser, NSString* path) {
    NSMatrix* column = [browser matrixInColumn:[browser lastColumn]];
    for (NSInteger row = 0; row < [column numberOfRows]; ++row) {
        if (![[[column cellAtRow:row column:0] stringValue] isEqual:[path lastPathComponent]])
            continue;
        [column selectCellAtRow:row column:0];
        return [column sendAction];
    }
    return false;
}

int flagOf(const Argument& argument) {
    if (argument.text == "true" || argument.text == "false")
        return argument.text == "true" ? 1 : 0;
    return wholeNumber(argument) == 1 ? 1 : 0;
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

Outcome Commands::perform(const std::vector<Argument>& words) {
    const Arguments arguments(words.begin() + 1, words.end());
    return (this->*find(words.front().text)->action)(arguments);
}

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

#pragma mark - The window and what stands before it

Outcome Commands::press(const Arguments& arguments) {
    NSWindow* modalWindow = [NSApp modalWindow];
    NSWindow* window = modalWindow == nil ? [preferences_ window] : modalWindow;
    NSButton* titled = findView<NSButton>([window contentView], [&](NSButton* candidate) {
        return [[candidate title] isEqual:string(arguments[0].text)] && [candidate isEnabled];
    });
    if (titled == nil)
        throw ScenarioError("there is no button '" + arguments[0].text + "' to press");
    pressButton(titled);
    return after(timeForWindows);
}

Outcome Commands::choose(const Arguments& arguments) {
    NSWindow* panel = [NSApp modalWindow];
    NSBrowser* browser = findView<NSBrowser>([panel contentView], [](NSBrowser*) { return true; });
    if (browser == nil)
        throw ScenarioError("there is no panel to choose in");
    NSString* path = string(arguments[0].text);
    if (![browser setPath:[path stringByDeletingLastPathComponent]] || !chooseInLastColumn(browser, path))
        throw ScenarioError("the panel does not show '" + arguments[0].text + "'");
    return after(timeForWindows);
}

Outcome Commands::wait(const Arguments& arguments) {
    return after(seconds(arguments[0]));
}

Outcome Commands::until(const Arguments& arguments) {
    id control = controls().named(arguments[0].text);
    const std::string wanted = arguments[1].text;
    if (![control isKindOfClass:[NSControl class]])
        throw ScenarioError("there is no control '" + arguments[0].text + "'");
    const bool hasTitle = [control isKindOfClass:[NSButton class]];
    return {.answer = {}, .pause = 0, .condition = [=] {
                return [hasTitle ? [control title] : [control stringValue] isEqual:string(wanted)] == YES;
            }};
}

Outcome Commands::resize(const Arguments& arguments) {
    [[preferences_ window] setContentSize:NSMakeSize(static_cast<CGFloat>(wholeNumber(arguments[0])),
                                                     static_cast<CGFloat>(wholeNumber(arguments[1])))];
    return after(timeForWindows);
}

Outcome Commands::picture(const Arguments& arguments) {
    NSWindow* modalWindow = [NSApp modalWindow];
    if (!writePicture(modalWindow == nil ? [preferences_ window] : modalWindow, arguments[0].text))
        throw ScenarioError("'" + arguments[0].text + "' could not be written");
    return {};
}

Outcome Commands::close(const Arguments&) {
    [[preferences_ window] performClose:nil];
    return {};
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
