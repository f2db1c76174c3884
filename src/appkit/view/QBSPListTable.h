#pragma once

#include "appkit/bridge/Retained.h"
#include "appkit/drawing/Fonts.h"

#import <AppKit/AppKit.h>

/// How the hide list looks: a column of names, which cannot be edited, and one of check boxes, in the size of
/// the system font.
@interface QBSPListTable : NSTableView {
    qbsp::appkit::FontSubstitution fonts;
    qbsp::appkit::Retained<NSString*> help;
}

/// Must be called after the titles of the columns were set.
- (void)chooseHeaderFonts;

/// Makes the column of flags as wide as its title, and that of names as wide as the room that is left.
- (void)fitColumns;

/// The width that shows the columns' titles whole.
- (CGFloat)minimumWidth;

/// What the data source has.
- (id)valueInColumn:(NSInteger)column row:(NSInteger)row;
- (NSString*)nameOfRow:(NSInteger)row;

/// What the tool tips say of the list.
- (void)setHelp:(NSString*)text;
- (NSString*)help;

/// The whole name of a row that shows it shortened, otherwise the help.
- (NSString*)toolTipForRow:(NSInteger)row;

/// Must be called when the rows have changed.
- (void)updateToolTips;

@end
