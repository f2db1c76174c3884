#include "appkit/services/Applications.h"

#include "RealSession.h"

#import <Foundation/Foundation.h>

#include <cstdlib>
#include <fstream>

namespace qbsp::appkit {

namespace fs = std::filesystem;

namespace {

constexpr platform::BundleIdentifier embedded{"Z3K8WQ4N7P.quarry2.QuarrybookSorter"};

fs::path homeFolder(const char* variable) {
    return std::getenv(variable);
}

class LoginItemCheck : public RealSession {
protected:
    [[nodiscard]] static bool sorterRuns() {
        return AppKitRunningApplications().applicationIsRunning(embedded);
    }

    [[nodiscard]] bool sorterIsAJob() const {
        const auto jobs = services.copyAllJobDictionaries(platform::JobDomain::userLaunchd);
        if (!jobs || jobs->empty())
            return false;
        EXPECT_EQ(jobs->size(), 1U) << "the Sorter should be the only job";
        EXPECT_EQ(platform::entry(jobs->front(), "Label"), platform::Value(std::string(embedded.text)));
        return platform::entry(jobs->front(), "OnDemand") == platform::Value(true);
    }

    AppKitServiceManagement services;
    const fs::path autostart = homeFolder("XDG_CONFIG_HOME") / "autostart";
    const fs::path entry = autostart / (std::string(embedded.text) + ".desktop");
};

} // namespace

TEST_F(LoginItemCheck, SwitchedOnIsListedAndStartsNowAndAtLogin) {
    EXPECT_FALSE(sorterIsAJob());

    services.loginItemSetEnabled(embedded, true);

    EXPECT_TRUE(sorterIsAJob());
    EXPECT_TRUE(eventually([] { return sorterRuns(); }));
    EXPECT_EQ(std::system(("desktop-file-validate '" + entry.string() + "'").c_str()), 0)
        << "the entry should be valid:\n"
        << bytesOf(entry);
    EXPECT_NE(bytesOf(entry).find(EMBEDDED_SORTER_EXECUTABLE), std::string::npos) << bytesOf(entry);
}

TEST_F(LoginItemCheck, SwitchedOffIsNeitherListedNorRunning) {
    services.loginItemSetEnabled(embedded, true);
    ASSERT_TRUE(eventually([] { return sorterRuns(); }));

    services.loginItemSetEnabled(embedded, false);

    EXPECT_FALSE(sorterIsAJob());
    EXPECT_FALSE(fs::exists(entry));
    EXPECT_TRUE(eventually([] { return !sorterRuns(); }));
}

TEST_F(LoginItemCheck, SwitchedOnTwiceIsOneJobAndOneProcess) {
    services.loginItemSetEnabled(embedded, true);
    ASSERT_TRUE(eventually([] { return sorterRuns(); }));
    services.loginItemSetEnabled(embedded, true);

    EXPECT_TRUE(sorterIsAJob());
    services.loginItemSetEnabled(embedded, false);
    EXPECT_TRUE(eventually([] { return !sorterRuns(); }));
}

TEST_F(LoginItemCheck, IsNoJobWhileTheUserHasSwitchedItsEntryOff) {
    services.loginItemSetEnabled(embedded, true);
    std::ofstream(entry, std::ios::app) << "Hidden=true\n";

    EXPECT_FALSE(sorterIsAJob());
    services.loginItemSetEnabled(embedded, true);
    EXPECT_TRUE(sorterIsAJob());
}

TEST_F(LoginItemCheck, IsNoJobAfterTheUserRemovedItsEntry) {
    services.loginItemSetEnabled(embedded, true);

    fs::remove(entry);

    EXPECT_FALSE(sorterIsAJob());
}

TEST_F(LoginItemCheck, ChangesNothingWhenItCannotBeWritten) {
    fs::create_directories(autostart.parent_path());
    std::ofstream(autostart) << "a file where the folder should be";

    services.loginItemSetEnabled(embedded, true);

    EXPECT_FALSE(sorterIsAJob());
    EXPECT_FALSE(sorterRuns());
}

TEST_F(LoginItemCheck, ChangesNothingWhenItsJobCannotBeRecorded) {
    fs::create_directories(homeFolder("XDG_DATA_HOME").parent_path());
    std::ofstream(homeFolder("XDG_DATA_HOME")) << "a file where the folder should be";

    services.loginItemSetEnabled(embedded, true);

    EXPECT_FALSE(sorterIsAJob());
    EXPECT_FALSE(fs::exists(entry));
    EXPECT_FALSE(sorterRuns());
}

TEST_F(LoginItemCheck, IsNotMadeWithoutAnEmbeddedApplication) {
    services.loginItemSetEnabled({"org.example.NotThere"}, true);

    EXPECT_FALSE(fs::exists(autostart));
    EXPECT_FALSE(sorterIsAJob());
}

TEST_F(LoginItemCheck, IsNoJobWhenTheRecordCannotBeRead) {
    services.loginItemSetEnabled(embedded, true);
    const auto record = homeFolder("XDG_DATA_HOME") / "com.quarrybook.SorterPane" / "LoginItems.plist";
    ASSERT_TRUE(fs::exists(record));

    std::ofstream(record) << "<plist><nonsense";

    EXPECT_FALSE(sorterIsAJob());
    services.loginItemSetEnabled(embedded, true);
    EXPECT_TRUE(sorterIsAJob());
    EXPECT_EQ(bytesOf(record.string() + ".unreadable"), "<plist><nonsense");
}

TEST_F(LoginItemCheck, IsNoJobWhateverElseTheRecordHolds) {
    services.loginItemSetEnabled(embedded, true);
    const auto record = homeFolder("XDG_DATA_HOME") / "com.quarrybook.SorterPane" / "LoginItems.plist";
    for (const char* text :
         {"", "()", "{}", "{ Jobs = text; }", "{ Jobs = {}; }", "{ Jobs = (); }",
          "{ Jobs = ( text, (), <00> ); }", "{ Jobs = ( {} ); }", "{ Jobs = ( { Label = {}; } ); }",
          "{ Jobs = ( { Label = <*I7>; } ); }", "{ Jobs = ( { OnDemand = <*BY>; } ); }",
          "{ Jobs = ( { Label = ../../Sorter; } ); }", "{ jobs = (); "}) {
        std::ofstream(record) << text;
        EXPECT_FALSE(sorterIsAJob()) << text;
    }
}

TEST_F(LoginItemCheck, RegistersAnApplicationThatIsThere) {
    AppKitLaunchServices launchServices;
    const auto update = platform::RegistrationUpdate::always;
    const auto application = makeApplication("Quarry", "org.example.Quarry").parent_path();
    fs::create_directories(folder / "Nameless.app");

    EXPECT_EQ(launchServices.registerURL(platform::URL::fileURLWithPath(application), update), 0)
        << "an application should be registered with status 0";
    EXPECT_NE(launchServices.registerURL(platform::URL::fileURLWithPath(folder / "Nowhere.app"), update), 0);
    EXPECT_NE(launchServices.registerURL(platform::URL::fileURLWithPath(folder / "Nameless.app"), update), 0);
}

} // namespace qbsp::appkit
