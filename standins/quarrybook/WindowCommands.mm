#import "Commands.h"

#import "CommandParts.h"
#import "Picture.h"
#import "UserInput.h"

namespace quarrybook {

namespace {

template <class View, class Matches> View* findView(NSView* view, Matches matches) {
    if ([view isKindOfClass:[View class]] && matches(static_cast<View*>(view)))
        return static_cast<View*>(view);
    for (NSUInteger index = 0; index < [[view subviews] count]; ++index)
        if (View* found = findView<View>([[view subviews] objectAtIndex:index], matches))
            return found;
    return nil;
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

} // namespace

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

Outcome Commands::say(const Arguments& arguments) {
    return {.answer = {"", arguments[0].text}, .pause = 0, .condition = {}};
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

} // namespace quarrybook
