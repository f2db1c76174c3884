#include "stages/NotificationsStage.h"

#include "appkit/bridge/PropertyListConversion.h"
#include "appkit/bridge/Retained.h"
#include "appkit/bridge/Strings.h"
#include "appkit/services/DistributedNotificationCenter.h"
#include "appkit/services/HostProcess.h"
#include "on_appkit/Eventually.h"

#import <Foundation/Foundation.h>

#include <deque>

/// Keeps the notifications that it hears, in their order.
@interface ContractListener : NSObject {
  @public
    std::deque<qbsp::contracts::Heard> heard;
}
- (void)hear:(NSNotification*)notification;
@end

@implementation ContractListener

- (void)hear:(NSNotification*)notification {
    heard.push_back({qbsp::appkit::utf8([notification name]), qbsp::appkit::utf8([notification object]),
                     qbsp::appkit::dictionaryFromObject([notification userInfo])});
}

@end

namespace qbsp::contracts {

using platform::Dictionary;

namespace {

/// The dictionary with numbers for Booleans, which do not survive the way.
Dictionary asItArrives(Dictionary userInfo) {
    for (auto& [key, value] : userInfo)
        if (value.as<bool>() != nullptr)
            value = value.intValue();
    return userInfo;
}

bool isTheSame(const Heard& one, const Heard& other) {
    // None and an empty one may be the same.
    return one.name == other.name && one.object == other.object &&
           asItArrives(one.userInfo.value_or(Dictionary())) ==
               asItArrives(other.userInfo.value_or(Dictionary()));
}

class AppKitStage final : public NotificationsStage {
  public:
    AppKitStage() {
        for (NSString* name : {@"First", @"Second"})
            [[NSDistributedNotificationCenter defaultCenter] addObserver:listener_.get()
                                                                selector:@selector(hear:)
                                                                    name:name
                                                                  object:nil];
    }

    ~AppKitStage() override {
        [[NSDistributedNotificationCenter defaultCenter] removeObserver:listener_.get()];
    }

    platform::DistributedNotificationCenter& notifications() override { return notifications_; }

    bool hears(const Heard& expected) override {
        auto& heard = listener_.get()->heard;
        if (!eventually([&] { return !heard.empty(); }))
            return false;
        const Heard first = heard.front();
        heard.pop_front();
        return isTheSame(first, expected);
    }

  private:
    const appkit::Retained<ContractListener*> listener_ =
        appkit::Retained<ContractListener*>::adopt([[ContractListener alloc] init]);
    appkit::AppKitLog log_;
    appkit::AppKitDistributedNotificationCenter notifications_{log_};
};

} // namespace

std::unique_ptr<NotificationsStage> NotificationsStage::appKit() {
    return std::make_unique<AppKitStage>();
}

} // namespace qbsp::contracts
