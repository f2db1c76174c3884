#import "appkit/plugin/QBSPVisibilityBinding.h"

#include "appkit/stores/UserDefaults.h"

#include <tuple>

// The pane gives it its first value, but its name is not among what the pane offers to a view.
static constexpr qbsp::platform::DefaultsKey invisibleKey{"SorterTabIsInvisible"};

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
    const bool invisible = qbsp::appkit::AppKitUserDefaults().objectForKey(invisibleKey).boolValue();
    [checkBox setState:invisible ? NSOffState : NSOnState];
}

- (void)store:(id)sender {
    qbsp::appkit::AppKitUserDefaults userDefaults;
    userDefaults.setBoolForKey([checkBox state] != NSOnState, invisibleKey);
    // What could not be saved stays set, and the next flush carries it.
    std::ignore = userDefaults.synchronize();
}

@end
