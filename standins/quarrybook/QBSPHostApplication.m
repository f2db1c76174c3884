#import "QBSPHostApplication.h"

@implementation QBSPHostApplication

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
