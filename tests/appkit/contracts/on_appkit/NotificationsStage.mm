#include "stages/NotificationsStage.h"

#include "appkit/bridge/PropertyListConversion.h"
#include "appkit/bridge/Retained.h"
#include "appkit/bridge/Strings.h"
#include "appkit/services/DistributedNotificationCenter.h"
#include "appkit/services/HostProcess.h"
#include "on_appkit/Eventually.h"

#import <Foundation/Foundation.h>

#include <deque>

/// Keeps the notifications that it receives, in their order.
@interface ContractListener : NSObject {
@public
    std::deque<qbsp::contracts::Received> received;
}
- (void)receive:(NSNotification*)notification;
@end

@implementation ContractListener

- (void)receive:(NSNotification*)notification {
    received.push_back({qbsp::appkit::utf8([notification name]), qbsp::appkit::utf8([notification object]),
                        qbsp::appkit::dictionaryFromObject([notification userInfo])});
}

@end

namespace qbsp::contracts {

using platform::Dictionary;

namespace {

/// The dictionary with numbers for its Booleans, as which they arrive.
Dictionary asItArrives(Dictionary userInfo) {
    for (auto& [key, value] : userInfo)
        if (value.as<bool>() != nullptr)
            value = value.intValue();
    return userInfo;
}

bool isTheSame(const Received& one, const Received& other) {
    // A notification without a dictionary may arrive with an empty one.
    return one.name == other.name && one.object == other.object &&
           asItArrives(one.userInfo.value_or(Dictionary())) ==
               asItArrives(other.userInfo.value_or(Dictionary()));
}

class AppKitStage final : public NotificationsStage {
public:
    AppKitStage() {
        for (NSString* name : {@"First", @"Second"})
            [[NSDistributedNotificationCenter defaultCenter] addObserver:listener_.get()
                                                                selector:@selector(receive:)
                                                                    name:name
                                                                  object:nil];
    }

    ~AppKitStage() override {
        [[NSDistributedNotificationCenter defaultCenter] removeObserver:listener_.get()];
    }

    platform::DistributedNotificationCenter& notifications() override { return notifications_; }

    bool receivesNext(const Received& expected) override {
        auto& received = listener_.get()->received;
        if (!eventually([&] { return !received.empty(); }))
            return false;
        const Received first = received.front();
        received.pop_front();
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
