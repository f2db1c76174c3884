#include "RealSession.h"
#include "objc/GSTry.h"
#include "processes/Session.h"

#import <Foundation/Foundation.h>

#include <csignal>
#include <cstdlib>
#include <tuple>

namespace fs = std::filesystem;

namespace {

const fs::path sorterExecutable = fs::path(SORTER_BUNDLE) / "Quarrybook Sorter";

void post(NSString* name, NSDictionary* userInfo) {
    [[NSDistributedNotificationCenter defaultCenter] postNotificationName:name
                                                                   object:@"Quarrybook"
                                                                 userInfo:userInfo
                                                       deliverImmediately:YES];
}

void store(id value, NSString* key, NSString* domain) {
    NSUserDefaults* defaults = [[[NSUserDefaults alloc] init] autorelease];
    [defaults synchronize];
    NSMutableDictionary* contents =
        [NSMutableDictionary dictionaryWithDictionary:[defaults persistentDomainForName:domain]];
    [contents setObject:value forKey:key];
    [defaults setPersistentDomain:contents forName:domain];
    EXPECT_TRUE([defaults synchronize]) << "the domain was not written";
}

class SorterCheck : public RealSession {
protected:
    [[nodiscard]] std::string log() const { return bytesOf(logFile); }

    /// Waits until that line is in the log.
    [[nodiscard]] testing::AssertionResult logs(const std::string& line) const {
        if (eventually([&] { return log().find(line + "\n") != std::string::npos; }))
            return testing::AssertionSuccess();
        return testing::AssertionFailure() << "the line \"" << line << "\" is not in the log:\n" << log();
    }

    const fs::path logFile = fs::path(std::getenv("XDG_STATE_HOME")) / "quarrybook" / "sorter.log";
};

} // namespace

TEST_F(SorterCheck, LogsItsIdentifierAndQuitsWithSuccess) {
    NSString* executable = [NSString stringWithUTF8String:sorterExecutable.c_str()];
    NSTask* sorter = [NSTask launchedTaskWithLaunchPath:executable arguments:[NSArray array]];
    ASSERT_TRUE(logs("started com.quarrybook.Sorter"));

    kill([sorter processIdentifier], SIGTERM);

    ASSERT_TRUE(eventually([&] { return ![sorter isRunning]; }));
    EXPECT_EQ([sorter terminationStatus], 0) << "a request to quit should end it with success";
    EXPECT_TRUE(log().ends_with("\nquitting\n")) << log();
}

TEST_F(SorterCheck, QuitsWhenItIsAskedToWhileItStarts) {
    const pid_t sorter = execute(sorterExecutable);
    ASSERT_TRUE(eventually([&] {
        return bytesOf(processes::folderOf(sorter) / "maps").find("libgnustep-cairo") != std::string::npos;
    }));

    kill(sorter, SIGTERM);

    EXPECT_TRUE(eventually([&] { return !processes::processOfNumber(sorter); }));
}

TEST_F(SorterCheck, LogsWhatItReadAfterEachNotice) {
    execute(sorterExecutable);
    ASSERT_TRUE(logs("started com.quarrybook.Sorter"));

    NSString* host = @"Quarrybook";
    store([NSNumber numberWithInt:8], @"Sorter.ClipHotKeyCode", host);
    store([NSNumber numberWithBool:YES], @"SorterTabIsInvisible", host);
    store([NSDictionary dictionaryWithObject:[NSNumber numberWithBool:YES] forKey:@"Mail"],
          @"UserSpecifiedFullScreenApplications", @"com.quarrybook.Sorter");
    post(@"QBSSorterShortcutKeysChanged", nil);
    post(@"QBSSorterPreferencesUpdated", [NSDictionary dictionaryWithObject:[NSNumber numberWithBool:NO]
                                                                     forKey:@"visibility"]);
    post(@"QBSSorterHideAppUpdated", nil);

    const std::string hotKeys = "Sorter.ClipHotKeyCode=8 Sorter.ClipHotKeyModifiers=none "
                                "Sorter.NoteHotKeyCode=none Sorter.NoteHotKeyModifiers=none";
    EXPECT_TRUE(logs("QBSSorterShortcutKeysChanged object=\"Quarrybook\" userInfo=none " + hotKeys));
    EXPECT_TRUE(logs("QBSSorterPreferencesUpdated object=\"Quarrybook\" userInfo={\"visibility\"=NO} "
                     "SorterTabIsInvisible=YES " +
                     hotKeys));
    EXPECT_TRUE(logs("QBSSorterHideAppUpdated object=\"Quarrybook\" userInfo=none "
                     "UserSpecifiedFullScreenApplications={\"Mail\"=YES}"));
}

TEST_F(SorterCheck, ReadsTheSharedHotKeyWhereItIsEmbedded) {
    const auto shared =
        fs::path(std::getenv("XDG_DATA_HOME")) / "Group Containers" / "Z3K8WQ4N7P.quarry2" / "Sorter";
    fs::create_directories(shared);
    NSDictionary* hotKey = [NSDictionary dictionaryWithObject:[NSNumber numberWithInt:49]
                                                       forKey:@"Sorter.ClipHotKeyCode"];
    [hotKey writeToFile:[NSString stringWithUTF8String:(shared / "clipHotKey.dictionary").c_str()]
             atomically:YES];
    execute(EMBEDDED_SORTER_EXECUTABLE);
    ASSERT_TRUE(logs("started Z3K8WQ4N7P.quarry2.QuarrybookSorter"));

    post(@"QBSSorterShortcutKeysChanged", nil);

    EXPECT_TRUE(logs("QBSSorterShortcutKeysChanged object=\"Quarrybook\" userInfo=none "
                     "Sorter.ClipHotKeyCode=none Sorter.ClipHotKeyModifiers=none Sorter.NoteHotKeyCode=none "
                     "Sorter.NoteHotKeyModifiers=none clipHotKey.dictionary={\"Sorter.ClipHotKeyCode\"=49}"));
}

TEST_F(SorterCheck, ReceivesNoticesAgainAfterTheNotificationDaemonDied) {
    execute(sorterExecutable);
    ASSERT_TRUE(logs("started com.quarrybook.Sorter"));

    for (const auto& daemon : processes::processesOfUser(
             [](const fs::path& executable) { return executable.filename() == "gdnc"; }))
        if (sharesSession(daemon))
            killAndAwait(daemon.pid);

    ASSERT_TRUE(logs("listening again"));
    EXPECT_TRUE(eventually([&] {
        // The first post after the daemon's end fails.
        std::ignore = objc::tryObjC([] { post(@"QBSSorterHideAppUpdated", nil); });
        return log().find("QBSSorterHideAppUpdated") != std::string::npos;
    }));
}

TEST_F(SorterCheck, IgnoresARequestToQuitWhileItIsSetToHang) {
    setenv("QUARRYBOOK_SORTER_HANGS", "1", 1);
    const pid_t pid = execute(sorterExecutable);
    unsetenv("QUARRYBOOK_SORTER_HANGS");
    ASSERT_TRUE(logs("started com.quarrybook.Sorter"));

    kill(pid, SIGTERM);

    EXPECT_TRUE(logs("asked to quit, and hangs"));
    EXPECT_TRUE(processes::processOfNumber(pid));
}

TEST_F(SorterCheck, WritesItsLogWhereTheEnvironmentSays) {
    const auto file = folder / "deep" / "sorter.log";
    setenv("QUARRYBOOK_SORTER_LOG", file.c_str(), 1);
    execute(sorterExecutable);
    unsetenv("QUARRYBOOK_SORTER_LOG");

    EXPECT_TRUE(eventually([&] { return bytesOf(file).starts_with("started com.quarrybook.Sorter\n"); }));
    EXPECT_FALSE(fs::exists(logFile));
}

TEST_F(SorterCheck, ComesWithAFactoryListOfSomeHiddenAndSomeShown) {
    for (const char* bundle : {SORTER_BUNDLE, SOLO_SORTER_BUNDLE, EMBEDDED_SORTER_BUNDLE}) {
        NSString* path = [[NSString stringWithUTF8String:bundle]
            stringByAppendingPathComponent:@"Contents/Resources/FactoryDefaults.plist"];
        NSDictionary* list = [[NSDictionary dictionaryWithContentsOfFile:path]
            objectForKey:@"UserSpecifiedFullScreenApplications"];

        EXPECT_GE([list count], 3U) << "a handful of applications should be in the list of " << bundle;
        EXPECT_TRUE([[list allValues] containsObject:[NSNumber numberWithBool:YES]]) << bundle;
        EXPECT_TRUE([[list allValues] containsObject:[NSNumber numberWithBool:NO]]) << bundle;
    }
}
