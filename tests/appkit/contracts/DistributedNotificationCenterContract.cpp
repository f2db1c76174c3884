#include "Contract.h"
#include "stages/NotificationsStage.h"

namespace qbsp::contracts {

using platform::Dictionary;

namespace {

class DistributedNotificationCenterContract : public Contract<NotificationsStage> {
protected:
    void post(const Heard& notification) {
        stage->notifications().postNotificationName({notification.name}, notification.object,
                                                    notification.userInfo,
                                                    platform::NotificationOptions::deliverImmediately);
    }
};

} // namespace

TEST_P(DistributedNotificationCenterContract, AListenerHearsNameObjectAndUserInformation) {
    const Heard notification{"First", "Quarrybook", Dictionary{{"visible", true}, {"name", "Größe"}}};

    post(notification);

    EXPECT_TRUE(stage->hears(notification));
}

TEST_P(DistributedNotificationCenterContract, ANotificationNeedsNoUserInformation) {
    const Heard notification{"First", "Größe", std::nullopt};

    post(notification);

    EXPECT_TRUE(stage->hears(notification));
}

TEST_P(DistributedNotificationCenterContract, NotificationsAreHeardInTheirOrder) {
    const Heard first{"First", "Quarrybook", std::nullopt};
    const Heard second{"Second", "Quarrybook", Dictionary{{"visible", false}}};

    post(first);
    post(second);
    post(first);

    EXPECT_TRUE(stage->hears(first));
    EXPECT_TRUE(stage->hears(second));
    EXPECT_TRUE(stage->hears(first));
}

TEST_P(DistributedNotificationCenterContract, ANotificationThatNobodyListensToIsHarmless) {
    const Heard heard{"Second", "Quarrybook", std::nullopt};

    post({"Nobody", "Quarrybook", Dictionary{{"visible", true}}});
    post(heard);

    EXPECT_TRUE(stage->hears(heard));
}

INSTANTIATE_TEST_SUITE_P(On, DistributedNotificationCenterContract, onBothSides<NotificationsStage>(),
                         nameOfSide);

} // namespace qbsp::contracts
