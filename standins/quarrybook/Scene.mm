#import "Scene.h"

#import "Strings.h"
#include "scenario/Json.h"
#include "scenario/ScenarioError.h"

namespace quarrybook {

using qbsp::scenario::jsonText;
using qbsp::scenario::ScenarioError;

namespace {

void throwIfHidden(NSView* view, const std::string& name) {
    if ([view isHidden])
        throw ScenarioError("hidden: " + jsonText(name));
}

} // namespace

NSWindow* Scene::frontWindow() const {
    NSWindow* modalWindow = [NSApp modalWindow];
    return modalWindow == nil ? [preferences_ window] : modalWindow;
}

PaneControls Scene::controls() const {
    if ([runner_ pane] == nil)
        throw ScenarioError("there is no pane yet");
    return PaneControls([[runner_ pane] mainView]);
}

NSButton* Scene::button(const std::string& field) const {
    id found = controls().named(field);
    if (![found isKindOfClass:[NSButton class]])
        throw ScenarioError("no button: " + jsonText(field));
    throwIfHidden(found, field);
    return found;
}

NSView* Scene::recorder(const std::string& which) const {
    const std::string name = which == "clip" ? field::clipHotKeyRecorder : field::noteHotKeyRecorder;
    NSView* found = controls().named(name);
    throwIfHidden(found, name);
    return found;
}

NSTableColumn* Scene::column(const std::string& identifier) const {
    NSTableColumn* found = [controls().table() tableColumnWithIdentifier:string(identifier)];
    if (found == nil)
        throw ScenarioError("the table has no column " + jsonText(identifier));
    return found;
}

NSInteger Scene::row(std::int32_t number) const {
    if (number < 0 || number >= [controls().table() numberOfRows])
        throw ScenarioError("the table has no row " + std::to_string(number));
    return number;
}

} // namespace quarrybook
