#include "platform/Alert.h"
#include "platform/Controls.h"
#include "platform/DistributedNotificationCenter.h"
#include "platform/FileManager.h"
#include "platform/LaunchServices.h"
#include "platform/OpenPanel.h"
#include "platform/PropertyLists.h"
#include "platform/Value.h"
#include "platform/Workspace.h"

#include <gtest/gtest.h>

namespace qbsp::platform {

// The adapters hand them to the system as numbers.
TEST(Constants, HaveTheNumbersThatTheSystemGivesThem) {
    EXPECT_EQ(static_cast<unsigned>(AlertStyle::critical), 2U);
    EXPECT_EQ(NSAlertFirstButtonReturn, 1000);
    EXPECT_EQ(static_cast<int>(ButtonState::mixed), -1);
    EXPECT_EQ(static_cast<int>(ButtonState::off), 0);
    EXPECT_EQ(static_cast<int>(ButtonState::on), 1);
    EXPECT_EQ(static_cast<unsigned>(NotificationOptions::deliverImmediately), 1U);
    EXPECT_EQ(static_cast<unsigned>(LaunchOptions::withoutActivation), 512U);
    EXPECT_EQ(NSOKButton, 1);
}

TEST(Constants, AreTrueForWhatTheyName) {
    EXPECT_TRUE(static_cast<bool>(IntermediateDirectories::create));
    EXPECT_FALSE(static_cast<bool>(IntermediateDirectories::mustExist));
    EXPECT_TRUE(static_cast<bool>(RegistrationUpdate::always));
    EXPECT_FALSE(static_cast<bool>(RegistrationUpdate::ifNewer));
    EXPECT_TRUE(static_cast<bool>(Atomically::yes));
    EXPECT_FALSE(static_cast<bool>(Atomically::no));
}

TEST(Constants, GiveADateNoSecondsAtFirst) {
    EXPECT_EQ(Date().secondsSinceReferenceDate, 0);
}

} // namespace qbsp::platform
