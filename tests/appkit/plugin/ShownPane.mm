#include "ShownPane.h"

ShownPane::ShownPane()
    : window_([[NSWindow alloc] initWithContentRect:NSMakeRect(0, 0, 600, 600)
                                          styleMask:NSTitledWindowMask
                                            backing:NSBackingStoreBuffered
                                              defer:NO]) {
    [[window_ contentView] addSubview:[pane mainView]];
}

ShownPane::~ShownPane() {
    [[pane mainView] removeFromSuperview];
    [window_ close];
}

void ShownPane::select() const {
    [pane willSelect];
    [window_ display];
}

void ShownPane::tick(NSInteger row, bool hide) const {
    NSTableView* table = [[pane mainView] valueForKey:@"hideAppsTable"];
    [pane tableView:table
        setObjectValue:[NSNumber numberWithInt:hide]
        forTableColumn:[[table tableColumns] objectAtIndex:1]
                   row:row];
}
