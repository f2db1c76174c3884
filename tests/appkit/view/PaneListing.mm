#import "PaneListing.h"

@implementation PaneListing

#pragma mark - NSTableViewDataSource

- (NSInteger)numberOfRowsInTableView:(NSTableView*)table {
    return static_cast<NSInteger>(names.size());
}

- (id)tableView:(NSTableView*)table objectValueForTableColumn:(NSTableColumn*)column row:(NSInteger)row {
    const auto index = static_cast<std::size_t>(row);
    if ([[column identifier] isEqual:@"1"])
        return [NSString stringWithUTF8String:names.at(index).c_str()];
    return [NSNumber numberWithInt:flags.at(index)];
}

- (void)tableView:(NSTableView*)table
    setObjectValue:(id)value
    forTableColumn:(NSTableColumn*)column
               row:(NSInteger)row {
    flags.at(static_cast<std::size_t>(row)) = [value intValue] == 1;
}

@end
