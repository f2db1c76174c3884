#import "WindowCommands.h"

#import "Picture.h"
#import "Strings.h"
#import "UserInput.h"
#include "scenario/Json.h"
#include "scenario/ScenarioError.h"

#include <array>
#include <cstdint>

namespace quarrybook {

using qbsp::scenario::jsonText;
using qbsp::scenario::ScenarioError;
using qbsp::scenario::Words;

namespace {

template <class View, class Matches>
View* findView(NSView* view, Matches matches) {
    if ([view isKindOfClass:[View class]] && matches(static_cast<View*>(view)))
        return static_cast<View*>(view);
    for (NSUInteger index = 0; index < [[view subviews] count]; ++index)
        if (View* found = findView<View>([[view subviews] objectAtIndex:index], matches))
            return found;
    return nil;
}

#pragma mark - Windows

Outcome press(const Scene& scene, const std::string& title) {
    auto* titled = findView<NSButton>([scene.frontWindow() contentView], [&](NSButton* candidate) {
        return [[candidate title] isEqual:string(title)] && [candidate isEnabled];
    });
    if (titled == nil)
        throw ScenarioError("no button to press: " + jsonText(title));
    pressButton(titled);
    return after(timeForWindows);
}

Action readPress(Words& arguments, const Scene& scene) {
    const std::string title = arguments.text();
    return [=, &scene] {
        return press(scene, title);
    };
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

Outcome choose(const std::string& file) {
    NSWindow* panel = [NSApp modalWindow];
    auto* browser = findView<NSBrowser>([panel contentView], [](NSBrowser*) { return true; });
    if (browser == nil)
        throw ScenarioError("there is no panel to choose in");
    NSString* path = string(file);
    if (![browser setPath:[path stringByDeletingLastPathComponent]] || !chooseInLastColumn(browser, path))
        throw ScenarioError("the panel does not show " + jsonText(file));
    return after(timeForWindows);
}

Action readChoose(Words& arguments, const Scene&) {
    const std::string file = arguments.text();
    return [=] {
        return choose(file);
    };
}

Action readResize(Words& arguments, const Scene& scene) {
    const std::int32_t width = arguments.signed32();
    const std::int32_t height = arguments.signed32();
    return [=, &scene] {
        [[scene.preferences() window]
            setContentSize:NSMakeSize(static_cast<CGFloat>(width), static_cast<CGFloat>(height))];
        return after(timeForWindows);
    };
}

Action readPicture(Words& arguments, const Scene& scene) {
    const std::string file = arguments.text();
    return [=, &scene] {
        if (!writePicture(scene.frontWindow(), file))
            throw ScenarioError("cannot write " + jsonText(file));
        return Outcome{};
    };
}

Outcome close(const Scene& scene) {
    [[scene.preferences() window] performClose:nil];
    return {};
}

#pragma mark - Scenario flow

Action readSay(Words& arguments, const Scene&) {
    const std::string text = arguments.text();
    return [=] {
        return Outcome{.lines = {"", text}, .pause = 0, .condition = {}};
    };
}

Action readWait(Words& arguments, const Scene&) {
    const double seconds = arguments.seconds().toDouble();
    return [=] {
        return after(seconds);
    };
}

Outcome until(id control, const std::string& text) {
    const bool hasTitle = [control isKindOfClass:[NSButton class]];
    return {.lines = {}, .pause = 0, .condition = [=] {
                return [hasTitle ? [control title] : [control stringValue] isEqual:string(text)] == YES;
            }};
}

Action readUntil(Words& arguments, const Scene& scene) {
    const std::string name = arguments.text();
    const std::string text = arguments.text();
    return [=, &scene] {
        id control = scene.controls().named(name);
        if (![control isKindOfClass:[NSControl class]])
            throw ScenarioError("no control: " + jsonText(name));
        return until(control, text);
    };
}

} // namespace

std::span<const Command> windowCommands() {
    static constexpr auto all = std::to_array<Command>({
        {"press", "TITLE", readPress},
        {"choose", "PATH", readChoose},
        {"resize", "WIDTH HEIGHT", readResize},
        {"picture", "FILE", readPicture},
        {"close", "", readNothing<close>},
        {"say", "TEXT", readSay, Echo::hidden},
        {"wait", "SECONDS", readWait},
        {"until", "FIELD TEXT", readUntil},
    });
    return all;
}

} // namespace quarrybook
