#import "on_appkit/ContractView.h"

static NSTableView* tableWithColumns(NSArray* identifiers) {
    NSTableView* table = [[[NSTableView alloc] initWithFrame:NSMakeRect(0, 0, 180, 80)] autorelease];
    for (NSUInteger index = 0; index < [identifiers count]; ++index)
        [table addTableColumn:[[[NSTableColumn alloc] initWithIdentifier:[identifiers objectAtIndex:index]]
                                  autorelease]];
    return table;
}

static NSScrollView* scrollViewAround(NSTableView* table) {
    NSScrollView* scrollView = [[[NSScrollView alloc] initWithFrame:NSMakeRect(0, 90, 200, 100)] autorelease];
    [scrollView setHasVerticalScroller:YES];
    [scrollView setDocumentView:table];
    return scrollView;
}

@implementation ContractView

- (id)init {
    if ((self = [super initWithFrame:NSMakeRect(0, 0, 200, 200)]) != nil) {
        textField = [[[NSTextField alloc] initWithFrame:NSMakeRect(0, 0, 100, 20)] autorelease];
        button = [[[NSButton alloc] initWithFrame:NSMakeRect(0, 30, 100, 20)] autorelease];
        [button setButtonType:NSSwitchButton];
        [button setAllowsMixedState:YES];
        [button setState:NSOffState];
        recorder = [[[QBSPRecorderView alloc] initWithFrame:NSMakeRect(0, 60, 100, 20)] autorelease];
        table = tableWithColumns([NSArray arrayWithObjects:@"1", @"2", nil]);
        [table setDataSource:static_cast<id>(self)];
        NSView* const controls[] = {textField, button, recorder, scrollViewAround(table)};
        for (NSView* control : controls)
            [self addSubview:control];
    }
    return self;
}

#pragma mark - NSTableViewDataSource

- (NSInteger)numberOfRowsInTableView:(NSTableView*)tableView {
    return rowCount;
}

- (id)tableView:(NSTableView*)tableView objectValueForTableColumn:(NSTableColumn*)column row:(NSInteger)row {
    return @"a text";
}

@end
