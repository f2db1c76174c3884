#include "LoadedPane.h"

#include "defaults/Domains.h"

NSString* const hideListKey = @"UserSpecifiedFullScreenApplications";

void store(id value, NSString* key, NSString* domain) {
    NSUserDefaults* defaults = [[[NSUserDefaults alloc] init] autorelease];
    [defaults synchronize];
    [defaults setPersistentDomain:[NSDictionary dictionaryWithObject:value forKey:key] forName:domain];
    ASSERT_TRUE([defaults synchronize]);
}

id stored(NSString* key, NSString* domain) {
    NSUserDefaults* defaults = [[[NSUserDefaults alloc] init] autorelease];
    [defaults synchronize];
    return [[defaults persistentDomainForName:domain] objectForKey:key];
}

NSDictionary* hideFlags(NSString* name) {
    return [NSDictionary dictionaryWithObject:[NSNumber numberWithBool:YES] forKey:name];
}

namespace {

/// Makes the loaded class's pane.
NSPreferencePane* makePane() {
    NSBundle* bundle = [NSBundle bundleWithPath:@PANE_BUNDLE];
    return [[[bundle principalClass] alloc] initWithBundle:bundle];
}

} // namespace

LoadedPane::LoadedPane() : pane(makePane()) {
    hostRegistrar() = {};
    [pane loadMainView];
}

LoadedPane::~LoadedPane() {
    [pane release];
    NSUserDefaults* defaults = [NSUserDefaults standardUserDefaults];
    [defaults setPersistentDomain:[NSDictionary dictionary] forName:defaults::ownDomain()];
}
