#include "RealSession.h"
#include "applications/Applications.h"

#import <Foundation/Foundation.h>

#include <cstdlib>
#include <fstream>

// What the host's plug-in offers; it is loaded, and reached by name.
@interface NSObject (HostsRegistrar)
+ (id)defaultLoader;
- (BOOL)applicationIsRegistered:(NSURL*)applicationURL;
- (BOOL)registerApplication:(NSURL*)applicationURL;
- (BOOL)unregisterApplication:(NSURL*)applicationURL;
- (void)showSorterApplication;
- (void)closeSorterApplication;
@end

namespace fs = std::filesystem;

namespace {

id loadedRegistrar() {
    [[NSBundle bundleWithPath:[NSString stringWithUTF8String:SORTER_PLUGIN]] load];
    return [NSClassFromString(@"QBSPLoader") defaultLoader];
}

NSURL* url(const fs::path& path) {
    return [NSURL fileURLWithPath:[NSString stringWithUTF8String:path.c_str()]];
}

class RegistrarCheck : public RealSession {
protected:
    ~RegistrarCheck() override { unsetenv("QUARRYBOOK_REGISTRAR_REFUSES"); }

    [[nodiscard]] bool isRegistered() const { return [registrar applicationIsRegistered:sorter]; }

    const id registrar = loadedRegistrar();
    NSURL* const sorter = url(SORTER_BUNDLE);
    const fs::path entry =
        fs::path(std::getenv("XDG_CONFIG_HOME")) / "autostart" / "com.quarrybook.Sorter.desktop";
};

} // namespace

TEST_F(RegistrarCheck, IsTheSameObjectEachTimeItIsAskedFor) {
    EXPECT_NE(registrar, nil);
    EXPECT_EQ(registrar, loadedRegistrar());
}

TEST_F(RegistrarCheck, AddsAndRemovesALoginItemThatADesktopAccepts) {
    EXPECT_FALSE(isRegistered());

    EXPECT_TRUE([registrar registerApplication:sorter]);
    EXPECT_TRUE(isRegistered());
    EXPECT_EQ(std::system(("desktop-file-validate '" + entry.string() + "'").c_str()), 0)
        << "the entry should be valid:\n"
        << bytesOf(entry);

    EXPECT_TRUE([registrar unregisterApplication:sorter]);
    EXPECT_FALSE(isRegistered());
    EXPECT_FALSE(fs::exists(entry));
}

TEST_F(RegistrarCheck, SucceedsInRemovingALoginItemThatIsNotThere) {
    EXPECT_TRUE([registrar unregisterApplication:sorter]);
    EXPECT_FALSE(fs::exists(entry));
}

TEST_F(RegistrarCheck, CountsALoginItemThatTheUserSwitchedOffAsNone) {
    ASSERT_TRUE([registrar registerApplication:sorter]);

    std::ofstream(entry, std::ios::app) << "Hidden=true\n";

    EXPECT_FALSE(isRegistered());
    EXPECT_TRUE([registrar registerApplication:sorter]);
    EXPECT_TRUE(isRegistered());
}

TEST_F(RegistrarCheck, DoesNotTakeACopyElsewhereForTheApplication) {
    const auto copy = makeApplication("Copy", "com.quarrybook.Sorter").parent_path();

    ASSERT_TRUE([registrar registerApplication:url(copy)]);

    EXPECT_FALSE(isRegistered());
    EXPECT_TRUE([registrar applicationIsRegistered:url(copy)]);
}

TEST_F(RegistrarCheck, LeavesAnEntryAsItIsWhenNothingHasToChange) {
    ASSERT_TRUE([registrar registerApplication:sorter]);
    std::ofstream(entry, std::ios::app) << "Comment=mine\n";
    EXPECT_TRUE([registrar registerApplication:sorter]);
    EXPECT_NE(bytesOf(entry).find("Comment=mine"), std::string::npos);

    std::ofstream(entry, std::ios::app) << "Hidden=true\n";
    EXPECT_TRUE([registrar unregisterApplication:sorter]);
    EXPECT_TRUE(fs::exists(entry));
}

TEST_F(RegistrarCheck, AddsOnlyApplications) {
    NSURL* const nowhere = url(folder / "Nowhere.app");

    EXPECT_FALSE([registrar registerApplication:nowhere]);
    EXPECT_FALSE([registrar applicationIsRegistered:nowhere]);
    EXPECT_TRUE([registrar unregisterApplication:nowhere]);
    EXPECT_FALSE(fs::exists(entry.parent_path()));
}

TEST_F(RegistrarCheck, ReturnsNoWithoutAUrl) {
    EXPECT_FALSE([registrar registerApplication:nil]);
    EXPECT_FALSE([registrar applicationIsRegistered:nil]);
    EXPECT_FALSE([registrar unregisterApplication:nil]);
}

TEST_F(RegistrarCheck, RefusesWhenTheEnvironmentSaysSo) {
    ASSERT_TRUE([registrar registerApplication:sorter]);

    setenv("QUARRYBOOK_REGISTRAR_REFUSES", "1", 1);

    EXPECT_FALSE([registrar unregisterApplication:sorter]);
    EXPECT_FALSE([registrar registerApplication:sorter]);
    EXPECT_TRUE(isRegistered());
}

TEST_F(RegistrarCheck, RefusesWhenTheEntryCannotBeWritten) {
    fs::create_directories(entry.parent_path().parent_path());
    std::ofstream(entry.parent_path()) << "a file where the folder should be";

    EXPECT_FALSE([registrar registerApplication:sorter]);
    EXPECT_FALSE(isRegistered());
}

// This program has no application object to ask for its edition.
TEST_F(RegistrarCheck, StartsAndStopsTheSorterOfTheHostsEdition) {
    const auto soloRuns = [] {
        return !applications::runningApplications("com.quarrybook.SoloSorter").empty();
    };

    [registrar showSorterApplication];
    EXPECT_TRUE(eventually(soloRuns));
    [registrar showSorterApplication];
    EXPECT_EQ(applications::runningApplications("com.quarrybook.SoloSorter").size(), 1U)
        << "a Sorter that runs should not be started again";

    [registrar closeSorterApplication];
    EXPECT_TRUE(eventually([&] { return !soloRuns(); }));
    EXPECT_TRUE(applications::runningApplications("com.quarrybook.Sorter").empty());
}
