#include "Contract.h"
#include "stages/NotificationsStage.h"

namespace qbsp::contracts {

using platform::Dictionary;

namespace {

class DistributedNotificationCenterContract : public Contract<NotificationsStage> {
protected:
    void post(const Received& notification) {
        stage->notifications().postNotificationName({notification.name}, notification.object,
                                                    notification.userInfo,
                                                    platform::NotificationOptions::deliverImmediately);
    }
};

} // namespace

TEST_P(DistributedNotificationCenterContract, AListenerReceivesNameObjectAndUserInformation) {
    const Received notification{"First", "Quarrybook", Dictionary{{"visible", true}, {"name", "Größe"}}};

    post(notification);

    EXPECT_TRUE(stage->receivesNext(notification));
}

TEST_P(DistributedNotificationCenterContract, ANotificationNeedsNoUserInformation) {
    const Received notification{"First", "Größe", std::nullopt};

    post(notification);

    EXPECT_TRUE(stage->receivesNext(notification));
}

TEST_P(DistributedNotificationCenterContract, NotificationsArriveInTheirOrder) {
    const Received first{"First", "Quarrybook", std::nullopt};
    const Received second{"Second", "Quarrybook", Dictionary{{"visible", false}}};

    post(first);
    post(second);
    post(first);

    EXPECT_TRUE(stage->receivesNext(first));
    EXPECT_TRUE(stage->receivesNext(second));
    EXPECT_TRUE(stage->receivesNext(first));
}

TEST_P(DistributedNotificationCenterContract, ANotificationWithoutAListenerIsHarmless) {
    const Received expected{"Second", "Quarrybook", std::nullopt};

    post({"Nobody", "Quarrybook", Dictionary{{"visible", true}}});
    post(expected);

    EXPECT_TRUE(stage->receivesNext(expected));
}

INSTANTIATE_TEST_SUITE_P(On, DistributedNotificationCenterContract, onBothSides<NotificationsStage>(),
                         nameOfSide);

} // namespace qbsp::contracts
