#include "applications/Applications.h"

#include "RealSession.h"

#include <tuple>

namespace fs = std::filesystem;

namespace {

class ApplicationsCheck : public RealSession {
protected:
    /// Another bundle with the identifier of Quarry.app, beside it.
    [[nodiscard]] fs::path makeCopy() const {
        return makeApplication("Copy of Quarry", "org.example.Quarry").parent_path();
    }

    const fs::path original = makeApplication("Quarry", "org.example.Quarry").parent_path();
};

} // namespace

TEST_F(ApplicationsCheck, HaveTheirOwnExecutablesThoughTheyShareAnIdentifier) {
    const fs::path copy = makeCopy();

    EXPECT_EQ(applications::executableOfBundle(original), original / "Quarry");
    EXPECT_EQ(applications::executableOfBundle(copy), copy / "Copy of Quarry");
}

TEST_F(ApplicationsCheck, AreFoundRunningEachAtItsOwnPlace) {
    const fs::path copy = makeCopy();
    executeIdle(original / "Quarry");
    executeIdle(copy / "Copy of Quarry");

    ASSERT_TRUE(
        eventually([] { return applications::runningApplications("org.example.Quarry").size() == 2; }));
    const auto running = applications::runningApplications("org.example.Quarry");
    EXPECT_NE(running[0].bundle, running[1].bundle);
}

TEST_F(ApplicationsCheck, AreReadAsTheyAreNow) {
    ASSERT_EQ(applications::identifierOfBundle(original), "org.example.Quarry");

    fs::remove_all(original);
    std::ignore = makeApplication("Quarry", "org.example.Newer");

    EXPECT_EQ(applications::identifierOfBundle(original), "org.example.Newer");
}
