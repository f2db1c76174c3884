#import <AppKit/AppKit.h>
#import <PreferencePanes/NSPreferencePane.h>

/// A pane with nothing in it.
@interface EmptyPane : NSPreferencePane
@end

@implementation EmptyPane

- (NSView*)loadMainView {
    NSView* view = [[NSView alloc] initWithFrame:NSMakeRect(0, 0, 560, 480)];
    [self setMainView:view];
    [view release];
    [self mainViewDidLoad];
    return view;
}

@end
