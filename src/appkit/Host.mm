#include "appkit/Host.h"

#import <AppKit/AppKit.h>

/// What a host of the pane answers; others answer neither.
@interface NSObject (QBSPHostQuestions)
- (BOOL)isSandboxed;
- (BOOL)isPro;
@end

namespace qbsp::appkit {

bool AppKitHost::isSandboxed() const {
    return [NSApp respondsToSelector:@selector(isSandboxed)] && [NSApp isSandboxed];
}

bool AppKitHost::isPro() const {
    return [NSApp respondsToSelector:@selector(isPro)] && [NSApp isPro];
}

} // namespace qbsp::appkit
