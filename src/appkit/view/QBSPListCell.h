#pragma once

#import "appkit/view/QBSPListTable.h"

#import <AppKit/AppKit.h>

/// A list with a check box in each row.
@protocol QBSPListOfFlags
- (NSInteger)flagColumnIndex;
- (BOOL)flagOfRow:(NSInteger)row;

/// As a click on the row's check box.
- (void)toggleFlagOfRow:(NSInteger)row;

- (NSString*)accessibilityHelp;
@end

/// A cell of the hide list as a screen reader knows it. The methods have the names of the system's
/// accessibility protocol.
@interface QBSPListCell : NSObject {
    QBSPListTable<QBSPListOfFlags>* table;
    NSInteger column;
    NSInteger row;
}

/// The table is not retained.
- (id)initWithTable:(QBSPListTable<QBSPListOfFlags>*)aTable column:(NSInteger)aColumn row:(NSInteger)aRow;

/// A check box's label is its row's name and its column's title; it has the value 0 or 1. A name's value is
/// the name.
- (NSString*)accessibilityRole;
- (NSString*)accessibilityLabel;
- (id)accessibilityValue;
- (NSString*)accessibilityHelp;
- (id)accessibilityParent;
- (NSRect)accessibilityFrame;

/// Toggles a check box. Returns NO for a name.
- (BOOL)accessibilityPerformPress;

@end
