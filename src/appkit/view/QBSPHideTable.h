#pragma once

#include "appkit/bridge/Retained.h"
#include "appkit/drawing/Fonts.h"
#include "appkit/view/TypeSelection.h"

#import <AppKit/AppKit.h>

/// The hide list: a column of names, which cannot be edited, and one of check boxes. Space ticks the selected
/// row's box, and typing selects the row whose name begins so. A row stays selected when the list is loaded
/// again if it still has the same name.
@interface QBSPHideTable : NSTableView {
    qbsp::appkit::FontSubstitution fonts;
    qbsp::appkit::TypeSelection typeSelection;
    qbsp::appkit::Retained<NSString*> selectedName;
    qbsp::appkit::Retained<NSString*> accessibilityLabel;
    qbsp::appkit::Retained<NSString*> accessibilityHelp;
}

- (NSInteger)flagColumnIndex;
- (NSString*)nameOfRow:(NSInteger)row;
- (BOOL)flagOfRow:(NSInteger)row;

/// Makes the column of flags as wide as its title, and that of names as wide as the room that is left.
- (void)fitColumns;

/// As a click on the row's check box.
- (void)toggleFlagOfRow:(NSInteger)row;

/// The whole name of a row that shows it shortened, otherwise the table's help.
- (NSString*)toolTipForRow:(NSInteger)row;

- (void)setAccessibilityLabel:(NSString*)label;
- (NSString*)accessibilityRole;
- (NSString*)accessibilityLabel;
- (void)setAccessibilityHelp:(NSString*)help;
- (NSString*)accessibilityHelp;
- (NSInteger)accessibilityRowCount;
- (NSInteger)accessibilityColumnCount;

/// An autoreleased element for the cell, nil for one that the table does not have.
- (id)accessibilityCellForColumn:(NSInteger)column row:(NSInteger)row;

@end
