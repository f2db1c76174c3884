#include "appkit/services/DistributedNotificationCenter.h"

#include "platform/Log.h"

#include <gtest/gtest.h>

#import <Foundation/Foundation.h>
#include <objc/runtime.h>

#include <string>
#include <string_view>
#include <vector>

namespace qbsp::contracts {

namespace {

int failuresLeft = 0;
int posts = 0;

void failAWhile(id, SEL, NSString*, NSString*, NSDictionary*, BOOL) {
    ++posts;
    if (failuresLeft-- > 0)
        [NSException raise:NSGenericException format:@"the daemon died"];
}

/// While it exists, the system's centre fails so many times.
class FailingCenter {
public:
    explicit FailingCenter(int failures) {
        posts = 0;
        failuresLeft = failures;
    }

    ~FailingCenter() { method_setImplementation(method_, original_); }

    FailingCenter(const FailingCenter&) = delete;
    FailingCenter& operator=(const FailingCenter&) = delete;

private:
    Method method_ = class_getInstanceMethod([NSDistributedNotificationCenter class], @selector
                                             (postNotificationName:object:userInfo:deliverImmediately:));
    // Cast by way of a function without parameters: a direct cast between functions that differ is a warning.
    IMP original_ =
        method_setImplementation(method_, reinterpret_cast<IMP>(reinterpret_cast<void (*)()>(failAWhile)));
};

class FailingPost : public testing::Test, protected platform::Log {
protected:
    void log(std::string_view line) override { lines.emplace_back(line); }

    void post() {
        appkit::AppKitDistributedNotificationCenter(*this).postNotificationName(
            {"QBSSorterHideAppUpdated"}, "Quarrybook", std::nullopt,
            platform::NotificationOptions::deliverImmediately);
    }

    std::vector<std::string> lines;
};

} // namespace

TEST_F(FailingPost, IsTriedOnceMore) {
    const FailingCenter center(1);

    post();

    EXPECT_EQ(posts, 2) << "the post that failed should have been tried once more";
    EXPECT_TRUE(lines.empty());
}

TEST_F(FailingPost, IsLoggedWhenItFailsAgain) {
    const FailingCenter center(5);

    post();

    EXPECT_EQ(posts, 2) << "a second failure should have been the last try";
    EXPECT_EQ(lines, std::vector<std::string>{
                         "ERROR: QBSSorterHideAppUpdated could not be posted: the daemon died"});
}

} // namespace qbsp::contracts
