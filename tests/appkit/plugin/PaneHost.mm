#include "PaneHost.h"

HostRegistrarState& hostRegistrar() {
    static HostRegistrarState state;
    return state;
}

@implementation HostRegistrar

- (BOOL)applicationIsRegistered:(NSURL*)applicationURL {
    hostRegistrar().messages.emplace_back("applicationIsRegistered:");
    return hostRegistrar().isRegistered;
}

- (BOOL)registerApplication:(NSURL*)applicationURL {
    return YES;
}

- (BOOL)unregisterApplication:(NSURL*)applicationURL {
    return YES;
}

- (void)closeSorterApplication {
    hostRegistrar().messages.emplace_back("closeSorterApplication");
}

@end

@implementation QBSPLoader

+ (id)defaultLoader {
    static HostRegistrar* const registrar = [[HostRegistrar alloc] init];
    return registrar;
}

@end

/// A host of the full edition.
@implementation NSApplication (FullEdition)

- (BOOL)isPro {
    return YES;
}

@end
