#include "appkit/ApplicationLaunch.h"

#include "appkit/Retained.h"
#include "appkit/Strings.h"
#include "appkit/URLs.h"

#import <AppKit/AppKit.h>

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
    if (application == nil)
        return {nullptr, optionalUTF8([error description])};
    return {std::make_shared<LaunchedApplication>(application), std::nullopt};
}

} // namespace qbsp::appkit
