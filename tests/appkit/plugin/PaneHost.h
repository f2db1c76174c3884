#pragma once

#import <AppKit/AppKit.h>

#include <string>
#include <vector>

/// What the host's registrar was told, and what it returns.
struct HostRegistrarState {
    bool isRegistered = false;
    std::vector<std::string> messages;
};

/// The state that all registrars of this process share.
[[nodiscard]] HostRegistrarState& hostRegistrar();

@interface HostRegistrar : NSObject
@end

/// The class that hands out the host's registrar.
@interface QBSPLoader : NSObject
+ (id)defaultLoader;
@end
