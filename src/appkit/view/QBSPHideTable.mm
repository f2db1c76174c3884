#import "appkit/view/QBSPHideTable.h"

#include "appkit/bridge/Strings.h"
#include "pane/PaneControls.h"

using qbsp::appkit::nsString;
using qbsp::appkit::Retained;

@interface QBSPHideTable ()
- (void)flagDidChangeInRow:(NSInteger)row;
- (BOOL)selectByTyping:(NSEvent*)event;
- (void)selectOnly:(NSInteger)row;
- (NSInteger)rowNamed:(NSString*)name near:(NSInteger)row;
@end

@implementation QBSPHideTable

- (id)initWithFrame:(NSRect)frame {
    if ((self = [super initWithFrame:frame]) != nil)
        [[NSNotificationCenter defaultCenter] addObserver:self
                                                 selector:@selector(selectionDidChange:)
                                                     name:NSTableViewSelectionDidChangeNotification
                                                   object:self];
    return self;
}

#pragma mark - The flags

- (NSInteger)flagColumnIndex {
    return [self columnWithIdentifier:nsString(qbsp::flagColumn.text)];
}

- (BOOL)flagOfRow:(NSInteger)row {
    return [[self valueInColumn:[self flagColumnIndex] row:row] intValue] == 1;
}

- (void)flagDidChangeInRow:(NSInteger)row {
    [self setNeedsDisplayInRect:[self rectOfRow:row]];
    NSAccessibilityPostNotification([self accessibilityCellForColumn:[self flagColumnIndex] row:row],
                                    NSAccessibilityValueChangedNotification);
}

- (void)toggleFlagOfRow:(NSInteger)row {
    NSTableColumn* column = [self tableColumnWithIdentifier:nsString(qbsp::flagColumn.text)];
    NSNumber* toggled = [NSNumber numberWithBool:![self flagOfRow:row]];
    [[self dataSource] tableView:self setObjectValue:toggled forTableColumn:column row:row];
    [self flagDidChangeInRow:row];
}

- (void)mouseDown:(NSEvent*)event {
    const NSInteger row = [self rowAtPoint:[self convertPoint:[event locationInWindow] fromView:nil]];
    const BOOL earlier = row >= 0 && [self flagOfRow:row];
    [super mouseDown:event];
    if (row >= 0 && row < [self numberOfRows] && [self flagOfRow:row] != earlier)
        [self flagDidChangeInRow:row];
}

#pragma mark - The selection

- (void)selectionDidChange:(NSNotification*)notification {
    const NSInteger row = [self selectedRow];
    selectedName = Retained<NSString*>(row < 0 ? nil : [self nameOfRow:row]);
}

- (void)selectOnly:(NSInteger)row {
    [self selectRowIndexes:[NSIndexSet indexSetWithIndex:static_cast<NSUInteger>(row)]
        byExtendingSelection:NO];
    [self scrollRowToVisible:row];
}

- (void)reloadData {
    const Retained<NSString*> name = selectedName;
    const NSInteger earlier = [self selectedRow];
    [super reloadData];
    if (earlier >= 0) {
        const NSInteger row = [self rowNamed:name.get() near:earlier];
        if (row < 0)
            [self deselectAll:nil];
        else if (row != [self selectedRow])
            [self selectOnly:row];
    }
    [self updateToolTips];
}

/// Looks at that row first: most often the list is as it was.
- (NSInteger)rowNamed:(NSString*)name near:(NSInteger)row {
    const NSInteger count = [self numberOfRows];
    if (row < count && [[self nameOfRow:row] isEqual:name])
        return row;
    for (NSInteger each = 0; each < count; ++each)
        if ([[self nameOfRow:each] isEqual:name])
            return each;
    return -1;
}

#pragma mark - The keyboard

- (BOOL)becomeFirstResponder {
    // Keys then have a row to act on.
    if ([self selectedRow]<0 && [self numberOfRows]> 0)
        [self selectOnly:0];
    [self setNeedsDisplay:YES];
    return [super becomeFirstResponder];
}

- (BOOL)resignFirstResponder {
    [self setNeedsDisplay:YES];
    return [super resignFirstResponder];
}

- (void)keyDown:(NSEvent*)event {
    if ([[event characters] isEqual:@" "]) {
        if ([self selectedRow] >= 0)
            [self toggleFlagOfRow:[self selectedRow]];
    } else if (![self selectByTyping:event])
        [super keyDown:event];
}

- (BOOL)selectByTyping:(NSEvent*)event {
    const NSUInteger others = NSCommandKeyMask | NSControlKeyMask | NSFunctionKeyMask;
    NSMutableCharacterSet* typed = [[[NSCharacterSet alphanumericCharacterSet] mutableCopy] autorelease];
    [typed formUnionWithCharacterSet:[NSCharacterSet punctuationCharacterSet]];
    NSString* characters = [event characters];
    if (([event modifierFlags] & others) != 0 || [characters length] == 0 ||
        [characters rangeOfCharacterFromSet:[typed invertedSet]].location != NSNotFound)
        return NO;
    const auto row = typeSelection.type(characters, [event timestamp], [self numberOfRows],
                                        [self](NSInteger each) { return [self nameOfRow:each]; });
    if (row)
        [self selectOnly:*row];
    return YES;
}

#pragma mark - Accessibility

- (BOOL)isAccessibilityElement {
    return YES;
}

- (NSString*)accessibilityRole {
    return NSAccessibilityTableRole;
}

- (void)setAccessibilityLabel:(NSString*)label {
    accessibilityLabel = Retained<NSString*>([[label copy] autorelease]);
}

- (NSString*)accessibilityLabel {
    return accessibilityLabel.get();
}

- (NSString*)accessibilityHelp {
    return [self help];
}

- (NSInteger)accessibilityRowCount {
    return [self numberOfRows];
}

- (NSInteger)accessibilityColumnCount {
    return [self numberOfColumns];
}

- (id)accessibilityCellForColumn:(NSInteger)column row:(NSInteger)row {
    if (column < 0 || column >= [self numberOfColumns] || row < 0 || row >= [self numberOfRows])
        return nil;
    return [[[QBSPListCell alloc] initWithTable:self column:column row:row] autorelease];
}

@end
