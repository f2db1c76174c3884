#include "appkit/services/ApplicationLaunch.h"

#include "appkit/bridge/Retained.h"
#include "appkit/bridge/Strings.h"
#include "appkit/bridge/URLs.h"

#import <AppKit/AppKit.h>

#include <memory>

namespace qbsp::appkit {

namespace {

class LaunchedApplication final : public platform::RunningApplication {
public:
    explicit LaunchedApplication(NSRunningApplication* application) : application_(application) {}

    bool terminate() override { return [application_.get() terminate]; }

private:
    Retained<NSRunningApplication*> application_;
};

} // namespace

platform::LaunchResult launchApplication(const platform::URL& url, platform::LaunchOptions options) {
    NSError* error = nil;
    NSRunningApplication* application =
        [[NSWorkspace sharedWorkspace] launchApplicationAtURL:nsURL(url)
                                                      options:(NSWorkspaceLaunchOptions)options
                                                configuration:nil
                                                        error:&error];
    platform::LaunchResult result{nullptr, optionalUTF8([error description])};
    if (application != nil)
        result.application = std::make_shared<LaunchedApplication>(application);
    return result;
}

} // namespace qbsp::appkit
