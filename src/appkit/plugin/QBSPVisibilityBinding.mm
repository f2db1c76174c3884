#import "appkit/plugin/QBSPVisibilityBinding.h"

#include "appkit/stores/StandardDefaults.h"

#include <tuple>

// The pane gives it its first value, but its name is not among what the pane offers to a view.
static NSString* const invisibleKey = @"SorterTabIsInvisible";

@implementation QBSPVisibilityBinding

- (id)initWithCheckBox:(NSButton*)aCheckBox {
    if ((self = [super init]) != nil) {
        checkBox = [aCheckBox retain];
        [checkBox setTarget:self];
        [checkBox setAction:@selector(store:)];
    }
    return self;
}

- (void)dealloc {
    [checkBox setTarget:nil];
    [checkBox release];
    [super dealloc];
}

- (void)refresh {
    const BOOL invisible = [[NSUserDefaults standardUserDefaults] boolForKey:invisibleKey];
    [checkBox setState:invisible ? NSOffState : NSOnState];
}

- (void)store:(id)sender {
    NSNumber* invisible = [NSNumber numberWithBool:[checkBox state] != NSOnState];
    qbsp::appkit::setStandardDefault(invisible, invisibleKey);
    // What could not be written stays set, and the next flush carries it.
    std::ignore = qbsp::appkit::flushStandardDefaults();
}

@end
