#include "stages/PaneBaseStage.h"

#include "appkit/bridge/Retained.h"
#include "appkit/services/PreferencePaneBase.h"

#include <utility>

/// The principal object as its base class sees it.
@interface ContractPane : NSPreferencePane <QBSPInheritedMessages> {
@public
    bool refused;
    std::vector<std::string> messages;
}
@end

@implementation ContractPane

- (id)inheritedInitWithBundle:(NSBundle*)bundle {
    messages.emplace_back("initWithBundle:");
    return refused ? nil : [super initWithBundle:bundle];
}

- (void)inheritedMainViewDidLoad {
    messages.emplace_back("mainViewDidLoad");
    [super mainViewDidLoad];
}

- (void)inheritedWillSelect {
    messages.emplace_back("willSelect");
    [super willSelect];
}

- (void)inheritedWillUnselect {
    messages.emplace_back("willUnselect");
    [super willUnselect];
}

@end

namespace qbsp::contracts {

namespace {

using appkit::Retained;

class AppKitStage final : public PaneBaseStage {
public:
    ~AppKitStage() override { [window_.get() close]; }

    platform::PreferencePaneBase& base() override { return base_; }

    void letPlatformRefuse() override { pane_.get()->refused = true; }

    std::vector<std::string> messages() override { return std::exchange(pane_.get()->messages, {}); }

    void showMainView(bool shown) override {
        [pane_.get() setMainView:view_.get()];
        [window_.get() setContentView:shown ? view_.get() : nil];
    }

private:
    static NSWindow* makeWindow() {
        NSWindow* window = [[NSWindow alloc] initWithContentRect:NSMakeRect(0, 0, 100, 100)
                                                       styleMask:NSTitledWindowMask
                                                         backing:NSBackingStoreBuffered
                                                           defer:YES];
        [window setReleasedWhenClosed:NO];
        return window;
    }

    const Retained<ContractPane*> pane_ = Retained<ContractPane*>::adopt([ContractPane alloc]);
    const Retained<NSView*> view_ =
        Retained<NSView*>::adopt([[NSView alloc] initWithFrame:NSMakeRect(0, 0, 100, 100)]);
    const Retained<NSWindow*> window_ = Retained<NSWindow*>::adopt(makeWindow());
    appkit::AppKitPreferencePaneBase base_ { pane_.get(), [NSBundle bundleWithPath:@PANE_BUNDLE] };
};

} // namespace

std::unique_ptr<PaneBaseStage> PaneBaseStage::appKit() {
    return std::make_unique<AppKitStage>();
}

} // namespace qbsp::contracts
