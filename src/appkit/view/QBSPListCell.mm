#import "appkit/view/QBSPListCell.h"

@interface QBSPListCell ()
- (BOOL)isFlag;
- (NSString*)title;
@end

@implementation QBSPListCell

- (id)initWithTable:(QBSPListTable<QBSPListOfFlags>*)aTable column:(NSInteger)aColumn row:(NSInteger)aRow {
    if ((self = [super init]) != nil) {
        table = aTable;
        column = aColumn;
        row = aRow;
    }
    return self;
}

- (BOOL)isFlag {
    return column == [table flagColumnIndex];
}

- (NSString*)title {
    NSTableColumn* titled = [[table tableColumns] objectAtIndex:static_cast<NSUInteger>(column)];
    return [[titled headerCell] stringValue];
}

- (BOOL)isAccessibilityElement {
    return YES;
}

- (NSString*)accessibilityRole {
    return [self isFlag] ? NSAccessibilityCheckBoxRole : NSAccessibilityStaticTextRole;
}

- (NSString*)accessibilityLabel {
    return [self isFlag] ? [NSString stringWithFormat:@"%@, %@", [table nameOfRow:row], [self title]]
                         : [self title];
}

- (id)accessibilityValue {
    if ([self isFlag])
        return [NSNumber numberWithBool:[table flagOfRow:row]];
    return [table nameOfRow:row];
}

- (NSString*)accessibilityHelp {
    return [table accessibilityHelp];
}

- (id)accessibilityParent {
    return table;
}

- (NSRect)accessibilityFrame {
    NSRect frame = [table convertRect:[table frameOfCellAtColumn:column row:row] toView:nil];
    frame.origin = [[table window] convertBaseToScreen:frame.origin];
    return frame;
}

- (BOOL)accessibilityPerformPress {
    if ([self isFlag])
        [table toggleFlagOfRow:row];
    return [self isFlag];
}

@end
