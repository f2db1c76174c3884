#include "appkit/services/Applications.h"

#include "RealSession.h"

#import <AppKit/AppKit.h>

#include <algorithm>
#include <csignal>
#include <cstdlib>
#include <map>
#include <optional>
#include <sys/wait.h>

namespace qbsp::appkit {

namespace fs = std::filesystem;

namespace {

constexpr platform::NotificationName didTerminate{"NSWorkspaceDidTerminateApplicationNotification"};
constexpr auto withoutActivation = platform::LaunchOptions::withoutActivation;
const std::string sorterIdentifier = "com.quarrybook.Sorter";

class Observer final : public platform::TerminationObserver {
public:
    void appDied(const platform::Notification& notification) override {
        reported.push_back(platform::stringEntry(notification.userInfo, "NSApplicationBundleIdentifier")
                               .value_or("nothing"));
        if (then)
            then();
    }

    [[nodiscard]] std::ptrdiff_t reportsOf(const std::string& identifier) const {
        return std::count(reported.begin(), reported.end(), identifier);
    }

    std::vector<std::string> reported;
    std::function<void()> then;
};

class WorkspaceCheck : public RealSession {
protected:
    [[nodiscard]] std::shared_ptr<platform::RunningApplication> launchSorter() {
        auto launched = workspace.launchApplicationAtURL(platform::URL::fileURLWithPath(SORTER_BUNDLE),
                                                         withoutActivation);
        EXPECT_EQ(launched.error, std::nullopt);
        return launched.application;
    }

    [[nodiscard]] static bool sorterRuns() {
        return AppKitRunningApplications().applicationIsRunning({sorterIdentifier});
    }

    [[nodiscard]] static std::string sorterLog() {
        return bytesOf(fs::path(std::getenv("XDG_STATE_HOME")) / "quarrybook" / "sorter.log");
    }

    /// Starts another application; observers that are added later know it.
    void startAnother(const std::string& name) {
        const std::string identifier = "org.example." + name;
        others_[name] = executeIdle(makeApplication(name, identifier));
        ASSERT_TRUE(
            eventually([&] { return AppKitRunningApplications().applicationIsRunning({identifier}); }));
    }

    [[nodiscard]] pid_t processOf(const std::string& name) const { return others_.at(name); }

    /// Kills the other application; returns once the observer was notified.
    void endAnother(const std::string& name, const Observer& notified) {
        killAndAwait(others_[name]);
        EXPECT_TRUE(eventually([&] { return notified.reportsOf("org.example." + name) == 1; }));
    }

    /// Posts a notice of an application's end that holds only the identifier.
    static void postNoticeOf(const std::string& identifier) {
        NSString* text = [NSString stringWithUTF8String:identifier.c_str()];
        [[[NSWorkspace sharedWorkspace] notificationCenter]
            postNotificationName:NSWorkspaceDidTerminateApplicationNotification
                          object:nil
                        userInfo:[NSDictionary dictionaryWithObject:text
                                                             forKey:@"NSApplicationBundleIdentifier"]];
    }

    /// Runs the run loop in that mode until the condition holds, ten seconds at the most.
    static void runUntil(NSString* mode, const std::function<bool()>& condition) {
        NSDate* limit = [NSDate dateWithTimeIntervalSinceNow:10];
        while (!condition() && [limit timeIntervalSinceNow] > 0)
            [[NSRunLoop currentRunLoop] runMode:mode beforeDate:limit];
    }

    /// Returns once what was begun has come to rest.
    static void settle() {
        int passes = 0;
        EXPECT_TRUE(eventually([&] { return ++passes > 20; }));
    }

    /// How often something wakes the run loop within a second. Its end, which wakes it too and may do so a
    /// little early, does not count.
    [[nodiscard]] static int wakeUpsInASecond() {
        constexpr NSTimeInterval lastMoment = 0.05;
        NSDate* end = [NSDate dateWithTimeIntervalSinceNow:1];
        int wakeUps = 0;
        for (;;) {
            [[NSRunLoop currentRunLoop] runMode:NSDefaultRunLoopMode beforeDate:end];
            if ([end timeIntervalSinceNow] < lastMoment)
                return wakeUps;
            ++wakeUps;
        }
    }

    AppKitWorkspace workspace;
    const std::shared_ptr<Observer> observer = std::make_shared<Observer>();

private:
    std::map<std::string, pid_t> others_;
};

} // namespace

TEST_F(WorkspaceCheck, LaunchesAnApplicationAndAsksItToQuit) {
    const auto sorter = launchSorter();
    ASSERT_NE(sorter, nullptr);
    ASSERT_TRUE(eventually([] { return sorterLog().find("started com.quarrybook.Sorter\n") == 0; }));
    EXPECT_TRUE(sorterRuns());

    EXPECT_TRUE(sorter->terminate());

    EXPECT_TRUE(eventually([] { return !sorterRuns(); }));
    EXPECT_TRUE(sorterLog().ends_with("quitting\n"));
}

TEST_F(WorkspaceCheck, ReturnsTheApplicationThatRunsAlready) {
    const auto first = launchSorter();
    ASSERT_NE(first, nullptr);
    ASSERT_TRUE(eventually([] { return !sorterLog().empty(); }));

    const auto second = launchSorter();
    ASSERT_NE(second, nullptr);
    EXPECT_TRUE(second->terminate());

    EXPECT_TRUE(eventually([&] { return !first->terminate(); }));
    EXPECT_FALSE(sorterRuns());
}

TEST_F(WorkspaceCheck, SaysWhatIsMissingWhenItCannotLaunch) {
    const auto bundle = makeApplication("Hollow", "org.example.Hollow").parent_path();
    fs::remove(bundle / "Hollow");

    const auto nowhere = workspace.launchApplicationAtURL(
        platform::URL::fileURLWithPath(folder / "Nowhere.app"), withoutActivation);
    const auto hollow =
        workspace.launchApplicationAtURL(platform::URL::fileURLWithPath(bundle), withoutActivation);

    EXPECT_EQ(nowhere.application, nullptr);
    EXPECT_EQ(nowhere.error, "There is no application at " + (folder / "Nowhere.app").string() + ".");
    EXPECT_EQ(hollow.application, nullptr);
    EXPECT_EQ(hollow.error, "The application at " + bundle.string() + " has no executable.");
}

TEST_F(WorkspaceCheck, ReturnsFalseWhenTheApplicationToQuitHasEnded) {
    const auto sorter = launchSorter();
    ASSERT_NE(sorter, nullptr);
    ASSERT_TRUE(eventually([] { return !sorterLog().empty(); }));
    EXPECT_TRUE(sorter->terminate());

    EXPECT_TRUE(eventually([&] { return !sorter->terminate(); }));
    EXPECT_FALSE(sorter->terminate());
}

TEST_F(WorkspaceCheck, DoesNotWaitForAnApplicationThatHangs) {
    setenv("QUARRYBOOK_SORTER_HANGS", "1", 1);
    execute(fs::path(SORTER_BUNDLE) / "Quarrybook Sorter");
    unsetenv("QUARRYBOOK_SORTER_HANGS");
    ASSERT_TRUE(eventually([] { return !sorterLog().empty(); }));
    const auto sorter = launchSorter();
    ASSERT_NE(sorter, nullptr);

    EXPECT_TRUE(sorter->terminate());

    EXPECT_TRUE(eventually([] { return sorterLog().ends_with("asked to quit, and hangs\n"); }));
    EXPECT_TRUE(sorterRuns());
}

TEST_F(WorkspaceCheck, ReportsAnApplicationThatQuitOnceAndAfterItsEnd) {
    startAnother("Mail");
    bool ranWhenReported = false;
    observer->then = [&] {
        ranWhenReported = ranWhenReported || sorterRuns();
    };
    workspace.addObserver(observer, didTerminate);
    const auto sorter = launchSorter();
    ASSERT_NE(sorter, nullptr);
    ASSERT_TRUE(eventually([] { return !sorterLog().empty(); }));

    EXPECT_TRUE(sorter->terminate());

    EXPECT_TRUE(eventually([&] { return observer->reportsOf(sorterIdentifier) > 0; }));
    EXPECT_FALSE(ranWhenReported);
    endAnother("Mail", *observer);
    EXPECT_EQ(observer->reportsOf(sorterIdentifier), 1) << "its end should have been reported once";
}

TEST_F(WorkspaceCheck, ReportsAKilledApplicationOnce) {
    startAnother("Mail");
    const pid_t pid = execute(fs::path(SORTER_BUNDLE) / "Quarrybook Sorter");
    ASSERT_TRUE(eventually([] { return !sorterLog().empty(); }));
    workspace.addObserver(observer, didTerminate);

    killAndAwait(pid);

    EXPECT_TRUE(eventually([&] { return observer->reportsOf(sorterIdentifier) > 0; }));
    endAnother("Mail", *observer);
    EXPECT_EQ(observer->reportsOf(sorterIdentifier), 1) << "its end should have been reported once";
}

TEST_F(WorkspaceCheck, ReportsTheEndOfAnApplicationThatLaunchedDuringTheObservation) {
    startAnother("Mail");
    workspace.addObserver(observer, didTerminate);
    const pid_t pid = execute(fs::path(SORTER_BUNDLE) / "Quarrybook Sorter");
    ASSERT_TRUE(eventually([] { return !sorterLog().empty(); }));

    killAndAwait(pid);

    EXPECT_TRUE(eventually([&] { return observer->reportsOf(sorterIdentifier) > 0; }));
    endAnother("Mail", *observer);
    EXPECT_EQ(observer->reportsOf(sorterIdentifier), 1);
}

TEST_F(WorkspaceCheck, ReportsTheEndOfWhateverWasFoundRunningDuringTheObservation) {
    workspace.addObserver(observer, didTerminate);
    startAnother("Mail");

    endAnother("Mail", *observer);
}

TEST_F(WorkspaceCheck, ReportsNothingInTheMidstOfAQuestion) {
    startAnother("Mail");
    startAnother("Clock");
    workspace.addObserver(observer, didTerminate);
    kill(processOf("Mail"), SIGKILL);
    siginfo_t ended = {};
    waitid(P_PID, static_cast<id_t>(processOf("Mail")), &ended, WEXITED | WNOWAIT);

    EXPECT_TRUE(AppKitRunningApplications().applicationIsRunning({"org.example.Clock"}));

    EXPECT_TRUE(observer->reported.empty());
    EXPECT_TRUE(eventually([&] { return observer->reportsOf("org.example.Mail") == 1; }));
}

TEST_F(WorkspaceCheck, ReportsAnEndAtOnceAlsoWhileAnAlertIsOpenOrTheMouseIsHeld) {
    workspace.addObserver(observer, didTerminate);
    for (NSString* mode : {NSDefaultRunLoopMode, NSModalPanelRunLoopMode, NSEventTrackingRunLoopMode}) {
        startAnother("Mail");
        settle();
        NSDate* killed = [NSDate date];
        std::optional<double> delay;
        observer->then = [&] {
            delay = -[killed timeIntervalSinceNow];
        };

        kill(processOf("Mail"), SIGKILL);
        runUntil(mode, [&] { return delay.has_value(); });

        // A tenth, on a machine that has nothing else to do.
        EXPECT_LT(delay.value_or(10), 1);
        fs::remove_all(folder / "Mail.app");
    }
}

TEST_F(WorkspaceCheck, SleepsWhileNothingStartsOrEnds) {
    startAnother("Mail");
    workspace.addObserver(observer, didTerminate);
    settle();

    // What was posted before may still arrive, and what was served to a notification daemon that died is
    // counted down by GNUstep for five seconds. What would go on does so in each of ten.
    int fewest = wakeUpsInASecond();
    for (int again = 0; again < 9 && fewest > 0; ++again)
        fewest = std::min(fewest, wakeUpsInASecond());
    EXPECT_EQ(fewest, 0);
    endAnother("Mail", *observer);
}

TEST_F(WorkspaceCheck, ReportsNothingToAnObserverThatWasRemoved) {
    startAnother("Mail");
    const auto other = std::make_shared<Observer>();
    workspace.addObserver(observer, didTerminate);
    workspace.addObserver(observer, didTerminate);
    workspace.addObserver(other, didTerminate);

    workspace.removeObserver(*observer);

    endAnother("Mail", *other);
    EXPECT_TRUE(observer->reported.empty());
    workspace.removeObserver(*observer);
}

TEST_F(WorkspaceCheck, LetsAnObserverRemoveItselfWhileItIsNotified) {
    startAnother("Mail");
    startAnother("Clock");
    const auto other = std::make_shared<Observer>();
    observer->then = [&] {
        workspace.removeObserver(*observer);
    };
    workspace.addObserver(observer, didTerminate);
    workspace.addObserver(other, didTerminate);

    endAnother("Mail", *other);
    endAnother("Clock", *other);

    EXPECT_EQ(observer->reported, std::vector<std::string>{"org.example.Mail"})
        << "only the end before it removed itself should have been reported";
}

TEST_F(WorkspaceCheck, DoesNotKeepItsObserverAlive) {
    startAnother("Mail");
    auto gone = std::make_shared<Observer>();
    const std::weak_ptr<Observer> left = gone;
    workspace.addObserver(gone, didTerminate);
    workspace.addObserver(observer, didTerminate);

    gone.reset();

    EXPECT_TRUE(left.expired());
    endAnother("Mail", *observer);
}

TEST_F(WorkspaceCheck, PassesOnANoticeThatNamesItsApplication) {
    workspace.addObserver(observer, didTerminate);

    postNoticeOf("org.example.Mail");

    EXPECT_TRUE(eventually([&] { return !observer->reported.empty(); }));
    EXPECT_EQ(observer->reported, std::vector<std::string>{"org.example.Mail"});
}

TEST_F(WorkspaceCheck, ReportsAnEndOnceThoughItsNoticeNamesTheApplication) {
    startAnother("Mail");
    startAnother("Clock");
    workspace.addObserver(observer, didTerminate);

    postNoticeOf("org.example.Mail");
    endAnother("Mail", *observer);

    endAnother("Clock", *observer);
    EXPECT_EQ(observer->reportsOf("org.example.Mail"), 1)
        << "the notice and the end should have been reported as one";
}

} // namespace qbsp::appkit
