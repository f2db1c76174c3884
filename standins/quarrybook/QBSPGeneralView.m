#import "QBSPGeneralView.h"

@implementation QBSPGeneralView

- (id)initWithFrame:(NSRect)frame {
    if ((self = [super initWithFrame:frame]) != nil) {
        const NSRect place = NSInsetRect([self bounds], 24, 24);
        NSTextField* sentence = [[[NSTextField alloc] initWithFrame:place] autorelease];
        [sentence setStringValue:
                      @"Quarrybook keeps what you collect. Choose Sorter above to set up how it collects."];
        [sentence setEditable:NO];
        [sentence setSelectable:NO];
        [sentence setBezeled:NO];
        [sentence setDrawsBackground:NO];
        [sentence setAutoresizingMask:NSViewWidthSizable | NSViewHeightSizable];
        [self setAutoresizingMask:NSViewWidthSizable | NSViewHeightSizable];
        [self addSubview:sentence];
    }
    return self;
}

@end
