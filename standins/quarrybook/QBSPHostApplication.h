#pragma once

#import <AppKit/AppKit.h>

/// The application object of Quarrybook. The pane asks it which build and which edition this is.
@interface QBSPHostApplication : NSApplication {
    BOOL sandboxed;
    BOOL pro;
}

- (void)setSandboxed:(BOOL)isSandboxed;
- (void)setPro:(BOOL)isPro;

- (BOOL)isSandboxed;
- (BOOL)isPro;

@end
