#import "QBSPSorterRegistrar.h"

#include "applications/Applications.h"
#include "xdg/Autostart.h"

#import <AppKit/AppKit.h>

#include <cstdlib>
#include <filesystem>
#include <iostream>
#include <string>

// What the host's application object may respond to.
@interface NSObject (QuarrybookEdition)
- (BOOL)isPro;
@end

namespace {

/// An application as the login items know it.
struct LoginItem {
    std::string identifier;
    xdg::DesktopEntry entry;
};

LoginItem loginItemAt(NSURL* url) {
    const std::string bundle = url == nil ? "" : [[url path] UTF8String];
    const std::string name = std::filesystem::path(bundle).stem();
    return {applications::identifierOfBundle(bundle), {name, applications::executableOfBundle(bundle)}};
}

bool isApplication(const LoginItem& item) {
    return !item.identifier.empty() && !item.entry.program.empty();
}

bool isRegistered(const LoginItem& item) {
    return isApplication(item) && xdg::Autostart::ofUser().program(item.identifier) == item.entry.program;
}

bool refuses() {
    return std::getenv("QUARRYBOOK_REGISTRAR_REFUSES") != nullptr;
}

bool hostIsFullEdition() {
    return [NSApp respondsToSelector:@selector(isPro)] && [NSApp isPro];
}

/// The Sorter of the host's edition, which lies beside this plug-in's executable.
std::string sorterBundle() {
    const char* name = hostIsFullEdition() ? "Quarrybook Sorter.app" : "Quarrybook Solo Sorter.app";
    NSString* plugin = [[NSBundle bundleForClass:[QBSPSorterRegistrar class]] executablePath];
    return std::filesystem::path([plugin UTF8String]).parent_path() / name;
}

} // namespace

@implementation QBSPSorterRegistrar

#pragma mark - Login item

- (BOOL)applicationIsRegistered:(NSURL*)applicationURL {
    return isRegistered(loginItemAt(applicationURL));
}

// An entry that is there already may hold settings of the user's.
- (BOOL)registerApplication:(NSURL*)applicationURL {
    const LoginItem item = loginItemAt(applicationURL);
    if (refuses() || !isApplication(item))
        return NO;
    return isRegistered(item) || !xdg::Autostart::ofUser().add(item.identifier, item.entry);
}

// An entry that starts another copy, or that the user switched off, is left alone.
- (BOOL)unregisterApplication:(NSURL*)applicationURL {
    const LoginItem item = loginItemAt(applicationURL);
    if (refuses() || applicationURL == nil)
        return NO;
    return !isRegistered(item) || !xdg::Autostart::ofUser().remove(item.identifier);
}

- (void)showAccountsSystemPreferencePane {
    std::cout << "showAccountsSystemPreferencePane" << std::endl;
}

#pragma mark - Process

- (void)showSorterApplication {
    const auto launched = applications::launchApplication(sorterBundle());
    if (const auto* reason = std::get_if<applications::Reason>(&launched))
        NSLog(@"ERROR: Failed to start Sorter: %@", [NSString stringWithUTF8String:reason->c_str()]);
}

- (void)closeSorterApplication {
    applications::askApplicationsToQuit(applications::identifierOfBundle(sorterBundle()));
}

@end
