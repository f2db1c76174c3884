#import "appkit/view/ControlMaking.h"

#include "appkit/bridge/Strings.h"
#import "appkit/view/QBSPButton.h"
#import "appkit/view/QBSPNameFormatter.h"
#include "pane/PaneControls.h"

namespace qbsp::appkit {

namespace {

NSTextField* makeText(NSTextAlignment alignment, NSFont* font) {
    NSTextField* text = [[[NSTextField alloc] initWithFrame:NSZeroRect] autorelease];
    [text setEditable:NO];
    [text setSelectable:NO];
    [text setBezeled:NO];
    [text setBordered:NO];
    [text setDrawsBackground:NO];
    [text setAlignment:alignment];
    [text setFont:font];
    [[text cell] setWraps:YES];
    return text;
}

NSButton* makeButton(NSButtonType type) {
    NSButton* button = [[[QBSPButton alloc] initWithFrame:NSZeroRect] autorelease];
    [button setButtonType:type];
    [button setTitle:@""];
    [button setFont:[NSFont systemFontOfSize:[NSFont systemFontSize]]];
    return button;
}

NSTableColumn* makeColumn(NSString* identifier, NSCell* cell) {
    NSTableColumn* column = [[[NSTableColumn alloc] initWithIdentifier:identifier] autorelease];
    [column setDataCell:cell];
    [[column headerCell] setStringValue:@""];
    return column;
}

NSTableColumn* makeNameColumn() {
    NSTextFieldCell* cell = [[[NSTextFieldCell alloc] initTextCell:@""] autorelease];
    [cell setFormatter:[[[QBSPNameFormatter alloc] init] autorelease]];
    [cell setLineBreakMode:NSLineBreakByTruncatingTail];
    NSTableColumn* column = makeColumn(nsString(nameColumn.text), cell);
    [column setEditable:NO];
    [column setResizingMask:NSTableColumnAutoresizingMask];
    return column;
}

NSTableColumn* makeFlagColumn() {
    NSButtonCell* cell = [[[NSButtonCell alloc] initTextCell:@""] autorelease];
    [cell setButtonType:NSSwitchButton];
    [cell setImagePosition:NSImageOnly];
    NSTableColumn* column = makeColumn(nsString(flagColumn.text), cell);
    [column setResizingMask:NSTableColumnNoResizing];
    [[column headerCell] setAlignment:NSCenterTextAlignment];
    return column;
}

} // namespace

NSTextField* makeLabel(NSTextAlignment alignment) {
    return makeText(alignment, [NSFont systemFontOfSize:[NSFont systemFontSize]]);
}

NSTextField* makeRemark() {
    return makeText(NSLeftTextAlignment, [NSFont systemFontOfSize:[NSFont smallSystemFontSize]]);
}

NSButton* makeCheckBox() {
    NSButton* checkBox = makeButton(NSSwitchButton);
    [checkBox setImagePosition:NSImageLeft];
    return checkBox;
}

NSButton* makePushButton() {
    NSButton* button = makeButton(NSMomentaryPushInButton);
    [button setBezelStyle:NSRoundedBezelStyle];
    return button;
}

NSTableView* makeHideTable() {
    NSTableView* table = [[[NSTableView alloc] initWithFrame:NSMakeRect(0, 0, 300, 100)] autorelease];
    [table addTableColumn:makeNameColumn()];
    [table addTableColumn:makeFlagColumn()];
    [table setAllowsColumnReordering:NO];
    [table setAllowsMultipleSelection:NO];
    [table setUsesAlternatingRowBackgroundColors:YES];
    [table setRowHeight:20];
    return table;
}

NSScrollView* makeScrollView(NSTableView* table) {
    NSScrollView* scrollView = [[[NSScrollView alloc] initWithFrame:NSZeroRect] autorelease];
    [scrollView setHasVerticalScroller:YES];
    [scrollView setBorderType:NSBezelBorder];
    [scrollView setDocumentView:table];
    return scrollView;
}

void setAccessibilityLabel(id element, NSString* label) {
    // By name, because not every AppKit has it.
    SEL setLabel = NSSelectorFromString(@"setAccessibilityLabel:");
    if ([element respondsToSelector:setLabel])
        [element performSelector:setLabel withObject:label];
}

} // namespace qbsp::appkit
