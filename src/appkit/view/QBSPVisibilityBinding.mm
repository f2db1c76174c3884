#import "appkit/view/QBSPVisibilityBinding.h"

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
    NSUserDefaults* defaults = [NSUserDefaults standardUserDefaults];
    [defaults setBool:[checkBox state] != NSOnState forKey:invisibleKey];
    [defaults synchronize];
}

@end
