#import "appkit/view/QBSPListTable.h"

#include "appkit/bridge/Strings.h"
#import "appkit/drawing/CheckBoxImages.h"
#import "appkit/view/QBSPFlagCell.h"
#import "appkit/view/QBSPNameCell.h"
#import "appkit/view/QBSPNameFormatter.h"
#import "appkit/view/TableHeader.h"
#include "pane/PaneControls.h"

using qbsp::appkit::nsString;
using qbsp::appkit::Retained;

static const CGFloat rowPadding = 6;
static const CGFloat headerPadding = 8;
static const CGFloat minimumFlagColumnWidth = 70;
static const CGFloat flagColumnPadding = 16;
static const CGFloat stripeStrength = CGFloat{6} / 100;

static NSFont* headerFont() {
    return [NSFont boldSystemFontOfSize:[NSFont systemFontSize]];
}

@interface QBSPListTable ()
- (NSTableColumn*)addColumn:(NSString*)identifier cell:(NSCell*)cell;
- (void)addNameColumn;
- (void)addFlagColumn;
- (void)sizeHeader;
- (CGFloat)widthOfFlags;
- (CGFloat)spacing;
- (BOOL)showsFocus;
@end

@implementation QBSPListTable

- (id)initWithFrame:(NSRect)frame {
    if ((self = [super initWithFrame:frame]) != nil) {
        [self setAllowsColumnResizing:NO];
        [self addNameColumn];
        [self addFlagColumn];
        qbsp::appkit::setUpHeader(self);
        [self setAllowsColumnReordering:NO];
        [self setAllowsMultipleSelection:NO];
        [self setDrawsGrid:NO];
        [self setRowHeight:qbsp::appkit::lineHeight(qbsp::appkit::controlFont()) + rowPadding];
        [self sizeHeader];
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
    [[column headerCell] setFont:headerFont()];
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
    qbsp::appkit::makeBareCheckBox(cell, qbsp::appkit::controlFont());
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

- (void)chooseHeaderFonts {
    for (NSUInteger index = 0; index < [[self tableColumns] count]; ++index) {
        NSCell* header = [[[self tableColumns] objectAtIndex:index] headerCell];
        [header setFont:qbsp::appkit::fontForText([header stringValue], headerFont())];
    }
}

- (CGFloat)widthOfFlags {
    NSTableColumn* flags = [self tableColumnWithIdentifier:nsString(qbsp::flagColumn.text)];
    return MAX(minimumFlagColumnWidth, [[flags headerCell] cellSize].width + flagColumnPadding);
}

- (CGFloat)minimumWidth {
    NSTableColumn* names = [self tableColumnWithIdentifier:nsString(qbsp::nameColumn.text)];
    return [[names headerCell] cellSize].width + [self widthOfFlags] + [self spacing];
}

// A column may take up more space than its width.
- (CGFloat)spacing {
    CGFloat spacing = 0;
    for (NSInteger index = 0; index < [self numberOfColumns]; ++index)
        spacing += NSWidth([self rectOfColumn:index]) -
                   [[[self tableColumns] objectAtIndex:static_cast<NSUInteger>(index)] width];
    return spacing;
}

- (void)fitColumns {
    NSTableColumn* names = [self tableColumnWithIdentifier:nsString(qbsp::nameColumn.text)];
    NSTableColumn* flags = [self tableColumnWithIdentifier:nsString(qbsp::flagColumn.text)];
    [flags setMaxWidth:[self widthOfFlags]];
    [flags setMinWidth:[flags maxWidth]];
    [flags setWidth:[flags maxWidth]];
    const CGFloat room = [[self enclosingScrollView] contentSize].width - [self spacing] - [flags width];
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

- (id)valueInColumn:(NSInteger)column row:(NSInteger)row {
    NSTableColumn* wanted = [[self tableColumns] objectAtIndex:static_cast<NSUInteger>(column)];
    return [[self dataSource] tableView:self objectValueForTableColumn:wanted row:row];
}

- (NSString*)nameOfRow:(NSInteger)row {
    return [self valueInColumn:[self columnWithIdentifier:nsString(qbsp::nameColumn.text)] row:row];
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

- (void)setHelp:(NSString*)text {
    help = Retained<NSString*>([[text copy] autorelease]);
}

- (NSString*)help {
    return help.get();
}

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
        return help.get();
    NSTableColumn* names = [[self tableColumns] objectAtIndex:static_cast<NSUInteger>(column)];
    auto* cell = static_cast<QBSPNameCell*>([names dataCell]);
    [cell setObjectValue:[self nameOfRow:row]];
    const BOOL isShortened = [cell isShortenedInFrame:[self frameOfCellAtColumn:column row:row]];
    return isShortened ? [self nameOfRow:row] : help.get();
}

@end
