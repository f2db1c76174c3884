#pragma once

#import <AppKit/AppKit.h>

/// The application object of Quarrybook. It answers the pane which build and which edition it is.
@interface QBSPHostApplication : NSApplication {
    BOOL sandboxed;
    BOOL pro;
}

- (void)setSandboxed:(BOOL)isSandboxed;
- (void)setPro:(BOOL)isPro;

- (BOOL)isSandboxed;
- (BOOL)isPro;

@end
