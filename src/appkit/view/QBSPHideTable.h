#pragma once

#include "appkit/bridge/Retained.h"
#import "appkit/view/QBSPListCell.h"
#include "appkit/view/TypeSelection.h"

#import <AppKit/AppKit.h>

/// The hide list at work. Space ticks the selected row's box, and typing selects the row whose name begins
/// so. The selection follows its application when the list is loaded again, or goes with it.
@interface QBSPHideTable : QBSPListTable <QBSPListOfFlags> {
    qbsp::appkit::TypeSelection typeSelection;
    qbsp::appkit::Retained<NSString*> selectedName;
    qbsp::appkit::Retained<NSString*> accessibilityLabel;
}

- (void)setAccessibilityLabel:(NSString*)label;
- (NSString*)accessibilityRole;
- (NSString*)accessibilityLabel;
- (NSInteger)accessibilityRowCount;
- (NSInteger)accessibilityColumnCount;

/// An autoreleased element for the cell, nil for one that the table does not have.
- (id)accessibilityCellForColumn:(NSInteger)column row:(NSInteger)row;

@end
