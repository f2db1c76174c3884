#import "QBSPPaneRunner.h"

@implementation QBSPPaneRunner

- (id)initWithBundlePath:(NSString*)path {
    if ((self = [super init]) != nil)
        bundle = [[NSBundle bundleWithPath:path] retain];
    return self;
}

- (void)dealloc {
    [pane release];
    [bundle release];
    [super dealloc];
}

- (NSString*)problem {
    if (bundle == nil)
        return @"there is no pane";
    if (![[bundle principalClass] isSubclassOfClass:[NSPreferencePane class]])
        return @"that is not a preference pane";
    return nil;
}

- (NSString*)label {
    id label = [bundle objectForInfoDictionaryKey:@"NSPrefPaneIconLabel"];
    return [label isKindOfClass:[NSString class]] ? label : @"Pane";
}

- (NSImage*)icon {
    NSString* name = [bundle objectForInfoDictionaryKey:@"NSPrefPaneIconFile"];
    NSString* path = name == nil ? nil : [bundle pathForResource:name ofType:nil];
    return path == nil ? nil : [[[NSImage alloc] initWithContentsOfFile:path] autorelease];
}

- (NSView*)mainView {
    if (pane == nil) {
        pane = [[[bundle principalClass] alloc] initWithBundle:bundle];
        [pane loadMainView];
    }
    return [pane mainView];
}

- (void)willSelect {
    shown = YES;
    [pane willSelect];
}

- (void)didSelect {
    if (shown)
        [pane didSelect];
}

- (void)willUnselect {
    if (shown)
        [pane willUnselect];
}

- (void)didUnselect {
    if (shown)
        [pane didUnselect];
    shown = NO;
}

- (NSPreferencePane*)pane {
    return pane;
}

@end
