#import "PaneControls.h"

#import "Strings.h"
#include "scenario/Json.h"

namespace quarrybook {

using qbsp::scenario::jsonArray;
using qbsp::scenario::jsonBoolean;
using qbsp::scenario::jsonObject;
using qbsp::scenario::jsonText;

namespace {

std::string text(NSString* string) {
    return jsonText(string == nil ? "" : [string UTF8String]);
}

std::string describeButton(NSButton* button) {
    return jsonObject({{"enabled", jsonBoolean([button isEnabled])},
                       {"hidden", jsonBoolean([button isHidden])},
                       {"state", std::to_string([button state])},
                       {"title", text([button title])}});
}

std::string describeTextField(NSTextField* field) {
    return jsonObject({{"hidden", jsonBoolean([field isHidden])}, {"text", text([field stringValue])}});
}

std::string describeRecorder(NSView* recorder) {
    return jsonObject({{"code", std::to_string([[recorder valueForKey:@"keyCode"] longValue])},
                       {"flags", std::to_string([[recorder valueForKey:@"flags"] unsignedLongValue])},
                       {"hidden", jsonBoolean([recorder isHidden])}});
}

std::string describeTable(NSTableView* table) {
    std::vector<std::string> columns;
    for (NSUInteger index = 0; index < [[table tableColumns] count]; ++index) {
        NSTableColumn* column = [[table tableColumns] objectAtIndex:index];
        columns.push_back(jsonArray({text([column identifier]), text([[column headerCell] stringValue])}));
    }
    std::vector<std::string> selected;
    if ([table selectedRow] >= 0)
        selected.push_back(std::to_string([table selectedRow]));
    return jsonObject({{"columns", jsonArray(columns)},
                       {"rows", std::to_string([table numberOfRows])},
                       {"selected", jsonArray(selected)}});
}

} // namespace

std::vector<std::string> PaneControls::names() const {
    const SEL list = NSSelectorFromString(@"controlNames");
    NSArray* all = [mainView_ respondsToSelector:list] ? [mainView_ performSelector:list] : nil;
    std::vector<std::string> names;
    for (NSUInteger index = 0; index < [all count]; ++index)
        names.emplace_back([[all objectAtIndex:index] UTF8String]);
    return names;
}

id PaneControls::named(const std::string& name) const {
    const SEL lookUp = NSSelectorFromString(@"controlNamed:");
    return [mainView_ respondsToSelector:lookUp] ? [mainView_ performSelector:lookUp withObject:string(name)]
                                                 : nil;
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

std::string cellValue(NSTableView* table, NSTableColumn* column, NSInteger row) {
    id value = [[table dataSource] tableView:table objectValueForTableColumn:column row:row];
    if ([value isKindOfClass:[NSString class]])
        return text(value);
    return value == nil ? "null" : std::to_string([value intValue]);
}

} // namespace quarrybook
