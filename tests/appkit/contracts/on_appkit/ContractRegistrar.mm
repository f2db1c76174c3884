#import "on_appkit/ContractRegistrar.h"

#include <utility>

namespace qbsp::contracts {

RegistrarState& registrarState() {
    static RegistrarState state;
    return state;
}

} // namespace qbsp::contracts

using qbsp::contracts::registrarState;

static void record(SEL message) {
    registrarState().messages.push_back([NSStringFromSelector(message) UTF8String]);
}

static void record(SEL message, NSURL* application) {
    record(message);
    registrarState().messages.back() +=
        application == nil ? " null" : std::string(" ") + [[application path] UTF8String];
}

static BOOL change(bool isRegistered) {
    if (registrarState().refuses)
        return NO;
    registrarState().isRegistered = isRegistered;
    return YES;
}

@implementation ContractRegistrar

- (BOOL)applicationIsRegistered:(NSURL*)applicationURL {
    record(_cmd, applicationURL);
    return registrarState().isRegistered;
}

- (BOOL)registerApplication:(NSURL*)applicationURL {
    record(_cmd, applicationURL);
    return change(true);
}

- (BOOL)unregisterApplication:(NSURL*)applicationURL {
    record(_cmd, applicationURL);
    return change(false);
}

- (void)showAccountsSystemPreferencePane {
    record(_cmd);
}

- (void)showSorterApplication {
    record(_cmd);
}

- (void)closeSorterApplication {
    record(_cmd);
}

@end

@implementation ContractLoader

+ (id)defaultLoader {
    static ContractRegistrar* const registrar = [[ContractRegistrar alloc] init];
    return registrar;
}

@end

@implementation ContractEmptyLoader

+ (id)defaultLoader {
    return nil;
}

@end
