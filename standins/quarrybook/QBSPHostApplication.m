#import "QBSPHostApplication.h"

#import <GNUstepGUI/GSDisplayServer.h>

/// The X server's side of AppKit, as far as it is called here.
@protocol QBSPMouseReader
- (void)initializeMouse;
@end

@implementation QBSPHostApplication

// AppKit on GNUstep 0.29 reads the mouse's options in the middle of the first press, and lets the run loop
// handle events meanwhile. A release that comes then would be queued before its press, and the press wait for
// another.
- (void)readMouseOptions {
    id server = GSCurrentServer();
    if ([server respondsToSelector:@selector(initializeMouse)])
        [server initializeMouse];
}

- (void)finishLaunching {
    [self readMouseOptions];
    [super finishLaunching];
}

- (void)setSandboxed:(BOOL)isSandboxed {
    sandboxed = isSandboxed;
}

- (void)setPro:(BOOL)isPro {
    pro = isPro;
}

- (BOOL)isSandboxed {
    return sandboxed;
}

- (BOOL)isPro {
    return pro;
}

@end
