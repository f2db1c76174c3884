#include "appkit/services/Applications.h"

#include "RealSession.h"

#include <csignal>
#include <cstdlib>

namespace qbsp::appkit {

namespace fs = std::filesystem;

namespace {

constexpr platform::BundleIdentifier quarryIdentifier{"org.example.Quarry"};

class RunningApplicationsCheck : public RealSession {
protected:
    [[nodiscard]] bool runs() const { return applications_.applicationIsRunning(quarryIdentifier); }

    const fs::path executable = makeApplication("Quarry", "org.example.Quarry");

private:
    AppKitRunningApplications applications_;
};

} // namespace

TEST_F(RunningApplicationsCheck, FindsAnApplicationThatSomeoneElseStarted) {
    EXPECT_FALSE(runs());

    executeIdle(executable);

    EXPECT_TRUE(eventually([&] { return runs(); }));
    EXPECT_FALSE(AppKitRunningApplications().applicationIsRunning({"org.example.quarry"}));
}

TEST_F(RunningApplicationsCheck, NoLongerCountsOneThatWasKilled) {
    const pid_t pid = executeIdle(executable);
    ASSERT_TRUE(eventually([&] { return runs(); }));

    killAndAwait(pid);

    EXPECT_FALSE(runs());
}

TEST_F(RunningApplicationsCheck, CountsASecondInstanceWhenTheFirstHasGone) {
    const pid_t first = executeIdle(executable);
    executeIdle(executable);

    killAndAwait(first);

    EXPECT_TRUE(eventually([&] { return runs(); }));
}

TEST_F(RunningApplicationsCheck, CountsOneWhoseFilesWereReplacedWhileItRuns) {
    executeIdle(executable);
    ASSERT_TRUE(eventually([&] { return runs(); }));

    fs::copy_file(executable, folder / "newer");
    fs::rename(folder / "newer", executable);

    EXPECT_TRUE(runs());
}

TEST_F(RunningApplicationsCheck, DoesNotCountAProcessThatOnlyHasTheName) {
    fs::copy_file(executable, folder / "Quarry");
    executeIdle(folder / "Quarry");
    const auto other = makeApplication("Other", "org.example.Other");
    fs::rename(other, other.parent_path() / "Quarry");
    executeIdle(other.parent_path() / "Quarry");
    const auto sentinel = makeApplication("Sentinel", "org.example.Sentinel");
    executeIdle(sentinel);

    ASSERT_TRUE(eventually(
        [] { return AppKitRunningApplications().applicationIsRunning({"org.example.Sentinel"}); }));
    EXPECT_FALSE(runs());
}

TEST_F(RunningApplicationsCheck, DoesNotCountAToolThatLiesBesideTheExecutable) {
    fs::copy_file(executable, executable.parent_path() / "helper");
    const pid_t tool = executeIdle(executable.parent_path() / "helper");

    ASSERT_TRUE(eventually([&] {
        return fs::read_symlink(fs::path("/proc") / std::to_string(tool) / "exe").filename() == "helper";
    }));
    EXPECT_FALSE(runs());
}

TEST_F(RunningApplicationsCheck, DoesNotCountAnApplicationOfAnotherSession) {
    const std::string session = std::getenv("TEMP");
    setenv("TEMP", "/another", 1);
    executeIdle(executable);
    ASSERT_TRUE(eventually([&] { return runs(); }));

    setenv("TEMP", session.c_str(), 1);

    EXPECT_FALSE(runs());
}

} // namespace qbsp::appkit
