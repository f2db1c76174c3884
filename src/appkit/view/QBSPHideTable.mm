#import "appkit/view/QBSPHideTable.h"

#include "appkit/bridge/Strings.h"
#import "appkit/drawing/CheckBoxImages.h"
#import "appkit/view/QBSPFlagCell.h"
#import "appkit/view/QBSPListCell.h"
#import "appkit/view/QBSPNameCell.h"
#import "appkit/view/QBSPNameFormatter.h"
#include "pane/PaneControls.h"

using qbsp::appkit::nsString;
using qbsp::appkit::Retained;

static const CGFloat rowPadding = 6;
static const CGFloat headerPadding = 8;
static const CGFloat minimumFlagColumnWidth = 70;
static const CGFloat flagColumnPadding = 16;
static const CGFloat stripeStrength = 0.06;

@interface QBSPHideTable ()
- (NSTableColumn*)addColumn:(NSString*)identifier cell:(NSCell*)cell;
- (void)addNameColumn;
- (void)addFlagColumn;
- (void)sizeHeader;
- (id)valueInColumn:(NSInteger)column row:(NSInteger)row;
- (void)flagDidChangeInRow:(NSInteger)row;
- (BOOL)showsFocus;
- (BOOL)selectByTyping:(NSEvent*)event;
- (void)selectOnly:(NSInteger)row;
- (NSInteger)rowNamed:(NSString*)name near:(NSInteger)row;
- (void)updateToolTips;
@end

@implementation QBSPHideTable

- (id)initWithFrame:(NSRect)frame {
    if ((self = [super initWithFrame:frame]) != nil) {
        [self addNameColumn];
        [self addFlagColumn];
        [self setAllowsColumnReordering:NO];
        [self setAllowsMultipleSelection:NO];
        [self setDrawsGrid:NO];
        [self setRowHeight:qbsp::appkit::lineHeight(qbsp::appkit::controlFont()) + rowPadding];
        [self sizeHeader];
        [[NSNotificationCenter defaultCenter] addObserver:self
                                                 selector:@selector(selectionDidChange:)
                                                     name:NSTableViewSelectionDidChangeNotification
                                                   object:self];
    }
    return self;
}

- (void)dealloc {
    [[NSNotificationCenter defaultCenter] removeObserver:self];
    [super dealloc];
}

#pragma mark - Making the columns

- (NSTableColumn*)addColumn:(NSString*)identifier cell:(NSCell*)cell {
    NSTableColumn* column = [[[NSTableColumn alloc] initWithIdentifier:identifier] autorelease];
    [cell setFont:qbsp::appkit::controlFont()];
    [column setDataCell:cell];
    [[column headerCell] setStringValue:@""];
    [[column headerCell] setFont:[NSFont boldSystemFontOfSize:[NSFont systemFontSize]]];
    [self addTableColumn:column];
    return column;
}

- (void)addNameColumn {
    QBSPNameCell* cell = [[[QBSPNameCell alloc] initTextCell:@""] autorelease];
    [cell setFonts:&fonts];
    [cell setFormatter:[[[QBSPNameFormatter alloc] init] autorelease]];
    NSTableColumn* column = [self addColumn:nsString(qbsp::nameColumn.text) cell:cell];
    [column setEditable:NO];
    [column setResizingMask:NSTableColumnAutoresizingMask];
    [[column headerCell] setAlignment:NSLeftTextAlignment];
}

- (void)addFlagColumn {
    QBSPFlagCell* cell = [[[QBSPFlagCell alloc] initTextCell:@""] autorelease];
    [cell setButtonType:NSSwitchButton];
    [cell setImagePosition:NSImageOnly];
    qbsp::appkit::setCheckBoxImages(cell, qbsp::appkit::controlFont());
    NSTableColumn* column = [self addColumn:nsString(qbsp::flagColumn.text) cell:cell];
    [column setResizingMask:NSTableColumnNoResizing];
    [[column headerCell] setAlignment:NSCenterTextAlignment];
}

- (void)sizeHeader {
    NSRect frame = [[self headerView] frame];
    frame.size.height = qbsp::appkit::lineHeight(qbsp::appkit::controlFont()) + headerPadding;
    [[self headerView] setFrame:frame];
    [[self cornerView] setFrameSize:NSMakeSize(NSWidth([[self cornerView] frame]), NSHeight(frame))];
}

#pragma mark - Layout

// A column may take up more space than its width.
- (void)fitColumns {
    NSTableColumn* names = [self tableColumnWithIdentifier:nsString(qbsp::nameColumn.text)];
    NSTableColumn* flags = [self tableColumnWithIdentifier:nsString(qbsp::flagColumn.text)];
    const CGFloat title = [[flags headerCell] cellSize].width + flagColumnPadding;
    [flags setMaxWidth:MAX(minimumFlagColumnWidth, title)];
    [flags setMinWidth:[flags maxWidth]];
    [flags setWidth:[flags maxWidth]];
    const CGFloat spacing = NSMaxX([self rectOfColumn:1]) - [names width] - [flags width];
    const CGFloat room = [[self enclosingScrollView] contentSize].width - spacing - [flags width];
    [names setWidth:MAX([flags width], room)];
}

// The scroller has come or gone.
- (void)viewDidMoveToSuperview {
    [super viewDidMoveToSuperview];
    NSNotificationCenter* center = [NSNotificationCenter defaultCenter];
    [center removeObserver:self name:NSViewFrameDidChangeNotification object:nil];
    if ([self superview] == nil)
        return;
    [[self superview] setPostsFrameChangedNotifications:YES];
    [center addObserver:self
               selector:@selector(clipViewFrameDidChange:)
                   name:NSViewFrameDidChangeNotification
                 object:[self superview]];
}

- (void)clipViewFrameDidChange:(NSNotification*)notification {
    [self fitColumns];
}

#pragma mark - The rows

- (NSInteger)flagColumnIndex {
    return [self columnWithIdentifier:nsString(qbsp::flagColumn.text)];
}

- (id)valueInColumn:(NSInteger)column row:(NSInteger)row {
    NSTableColumn* wanted = [[self tableColumns] objectAtIndex:static_cast<NSUInteger>(column)];
    return [[self dataSource] tableView:self objectValueForTableColumn:wanted row:row];
}

- (NSString*)nameOfRow:(NSInteger)row {
    return [self valueInColumn:[self columnWithIdentifier:nsString(qbsp::nameColumn.text)] row:row];
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

#pragma mark - Drawing

- (BOOL)showsFocus {
    return [[self window] firstResponder] == self && [[self window] isKeyWindow];
}

- (void)drawBackgroundInClipRect:(NSRect)clip {
    [[NSColor textBackgroundColor] set];
    NSRectFill(clip);
    NSColor* ground = [[NSColor textBackgroundColor] colorUsingColorSpaceName:NSCalibratedRGBColorSpace];
    [[ground blendedColorWithFraction:stripeStrength ofColor:[NSColor textColor]] set];
    const NSRange rows = [self rowsInRect:clip];
    for (NSUInteger row = rows.location | 1; row < NSMaxRange(rows); row += 2)
        NSRectFill([self rectOfRow:static_cast<NSInteger>(row)]);
}

- (void)highlightSelectionInClipRect:(NSRect)clip {
    if ([self selectedRow] < 0)
        return;
    [[self showsFocus] ? [NSColor alternateSelectedControlColor] : [NSColor secondarySelectedControlColor]
        set];
    NSRectFill([self rectOfRow:[self selectedRow]]);
}

- (void)drawRow:(NSInteger)row clipRect:(NSRect)clip {
    const BOOL isHighlighted = row == [self selectedRow] && [self showsFocus];
    for (NSInteger index = 0; index < [self numberOfColumns]; ++index) {
        NSTableColumn* column = [[self tableColumns] objectAtIndex:static_cast<NSUInteger>(index)];
        id cell = [column dataCellForRow:row];
        [cell setObjectValue:[self valueInColumn:index row:row]];
        if ([cell respondsToSelector:@selector(setTextColor:)])
            [cell setTextColor:isHighlighted ? [NSColor alternateSelectedControlTextColor]
                                             : [NSColor textColor]];
        [cell drawWithFrame:[self frameOfCellAtColumn:index row:row] inView:self];
    }
}

#pragma mark - Tool tips

- (void)setFrame:(NSRect)frame {
    [super setFrame:frame];
    [self updateToolTips];
}

- (void)viewDidMoveToWindow {
    [super viewDidMoveToWindow];
    [self updateToolTips];
}

/// One rectangle for each row: the system asks for a text once for each.
- (void)updateToolTips {
    [self removeAllToolTips];
    if ([self window] == nil)
        return;
    const NSRange rows = [self rowsInRect:[self visibleRect]];
    const NSRect below = NSMakeRect(0, NSMaxY([self rectOfRow:[self numberOfRows] - 1]),
                                    NSWidth([self bounds]), NSHeight([self bounds]));
    [self addToolTipRect:NSIntersectionRect(below, [self visibleRect]) owner:self userData:NULL];
    for (NSUInteger row = rows.location; row < NSMaxRange(rows); ++row)
        [self addToolTipRect:[self rectOfRow:static_cast<NSInteger>(row)] owner:self userData:NULL];
}

- (NSString*)view:(NSView*)view stringForToolTip:(NSToolTipTag)tag point:(NSPoint)point userData:(void*)data {
    return [self toolTipForRow:[self rowAtPoint:point]];
}

- (NSString*)toolTipForRow:(NSInteger)row {
    const NSInteger column = [self columnWithIdentifier:nsString(qbsp::nameColumn.text)];
    if (row < 0 || row >= [self numberOfRows])
        return accessibilityHelp.get();
    NSTableColumn* names = [[self tableColumns] objectAtIndex:static_cast<NSUInteger>(column)];
    auto* cell = static_cast<QBSPNameCell*>([names dataCell]);
    [cell setObjectValue:[self nameOfRow:row]];
    const BOOL isShortened = [cell isShortenedInFrame:[self frameOfCellAtColumn:column row:row]];
    return isShortened ? [self nameOfRow:row] : accessibilityHelp.get();
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

- (void)setAccessibilityHelp:(NSString*)help {
    accessibilityHelp = Retained<NSString*>([[help copy] autorelease]);
}

- (NSString*)accessibilityHelp {
    return accessibilityHelp.get();
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
