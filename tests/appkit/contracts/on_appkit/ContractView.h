#pragma once

#import "appkit/recorder/QBSPRecorderView.h"

#import <AppKit/AppKit.h>

/// A view with a control of each kind; it is the table's data source.
@interface ContractView : NSView {
@public
    NSTextField* textField;
    NSButton* button;
    QBSPRecorderView* recorder;
    NSTableView* table;
    NSInteger rowCount;
}
@end
