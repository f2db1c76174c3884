#import "PaneControls.h"

#include "ScenarioLine.h"

namespace quarrybook {

namespace {

std::string json(bool value) {
    return value ? "true" : "false";
}

std::string text(NSString* string) {
    return quoted(string == nil ? "" : [string UTF8String]);
}

std::string describeButton(NSButton* button) {
    return "{\"enabled\": " + json([button isEnabled]) + ", \"hidden\": " + json([button isHidden]) +
           ", \"state\": " + std::to_string([button state]) + ", \"title\": " + text([button title]) + "}";
}

std::string describeTextField(NSTextField* field) {
    return "{\"hidden\": " + json([field isHidden]) + ", \"text\": " + text([field stringValue]) + "}";
}

std::string describeRecorder(NSView* recorder) {
    const long code = [[recorder valueForKey:@"keyCode"] longValue];
    const unsigned long flags = [[recorder valueForKey:@"flags"] unsignedLongValue];
    return "{\"code\": " + std::to_string(code) + ", \"flags\": " + std::to_string(flags) +
           ", \"hidden\": " + json([recorder isHidden]) + "}";
}

} // namespace

const std::vector<std::string>& PaneControls::names() {
    static const std::vector<std::string> all{
        "clipHotKeyRecorder", "noteHotKeyRecorder", "showAtLoginCheckbox", "toggleLaunchButton",
        "visibilityButton",   "availabilityLabel",  "visibilityLabel",     "descriptionLabel",
        "takeNoteLabel",      "copySelectionLabel", "attentionLabel",      "resetFullscreenSettingsButton",
        "hideAppsTable",      "hideAppLabel"};
    return all;
}

id PaneControls::named(const std::string& name) const {
    const SEL lookUp = NSSelectorFromString(@"controlNamed:");
    NSString* key = [NSString stringWithUTF8String:name.c_str()];
    return [mainView_ respondsToSelector:lookUp] ? [mainView_ performSelector:lookUp withObject:key] : nil;
}

std::string PaneControls::description(const std::string& name) const {
    id control = named(name);
    if ([control isKindOfClass:[NSButton class]])
        return describeButton(control);
    if ([control isKindOfClass:[NSTextField class]])
        return describeTextField(control);
    if ([control isKindOfClass:[NSTableView class]])
        return describeTable(control);
    return control == nil ? "null" : describeRecorder(control);
}

std::string PaneControls::describeTable(NSTableView* table) {
    std::string columns;
    for (NSUInteger index = 0; index < [[table tableColumns] count]; ++index) {
        NSTableColumn* column = [[table tableColumns] objectAtIndex:index];
        columns += (index == 0 ? "[" : ", [") + text([column identifier]) + ", " +
                   text([[column headerCell] stringValue]) + "]";
    }
    const NSInteger selected = [table selectedRow];
    return "{\"columns\": [" + columns + "], \"rows\": " + std::to_string([table numberOfRows]) +
           ", \"selected\": [" + (selected < 0 ? "" : std::to_string(selected)) + "]}";
}

std::string cellValue(NSTableView* table, NSTableColumn* column, NSInteger row) {
    id value = [[table dataSource] tableView:table objectValueForTableColumn:column row:row];
    if ([value isKindOfClass:[NSString class]])
        return text(value);
    return value == nil ? "null" : std::to_string([value intValue]);
}

} // namespace quarrybook
