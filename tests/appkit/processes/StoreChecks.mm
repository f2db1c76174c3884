#include "appkit/services/FileManager.h"
#include "appkit/stores/Preferences.h"
#include "appkit/stores/PropertyLists.h"
#include "appkit/stores/UserDefaults.h"
#include "defaults/Domains.h"
#include "files/DefaultsLock.h"
#include "files/Owner.h"

#include "RealSession.h"

#import <Foundation/Foundation.h>

#include <chrono>
#include <cstdlib>
#include <fstream>
#include <sys/stat.h>

namespace qbsp::appkit {

namespace fs = std::filesystem;

using platform::Value;
using std::chrono::steady_clock;

namespace {

constexpr platform::ApplicationID full{"org.example.Sorter"};
constexpr platform::ApplicationID solo{"org.example.SoloSorter"};
constexpr platform::PreferenceKey key{"Key"};

fs::path defaultsFolder() {
    return fs::path(std::getenv("HOME")) / "GNUstep/Defaults";
}

/// A plain file where the folder of the defaults should be.
class FileInPlaceOfFolder {
public:
    FileInPlaceOfFolder() {
        fs::rename(defaultsFolder(), away_);
        std::ofstream(defaultsFolder()) << "no folder";
    }

    ~FileInPlaceOfFolder() {
        fs::remove(defaultsFolder());
        fs::rename(away_, defaultsFolder());
    }

    FileInPlaceOfFolder(const FileInPlaceOfFolder&) = delete;
    FileInPlaceOfFolder& operator=(const FileInPlaceOfFolder&) = delete;

private:
    fs::path away_ = defaultsFolder().string() + "-away";
};

class StoreCheck : public RealSession {
protected:
    [[nodiscard]] bool flush(platform::ApplicationID application) {
        return preferences->synchronize(application, platform::PreferencesUser::currentUser,
                                        platform::PreferencesHost::anyHost);
    }

    [[nodiscard]] static fs::path fileOf(platform::ApplicationID application) {
        return defaultsFolder() / (std::string(application.text) + ".plist");
    }

    [[nodiscard]] static Value inFile(platform::ApplicationID application) {
        const auto contents = AppKitPropertyLists().dictionaryWithContentsOfFile(fileOf(application));
        return platform::entry(contents.value_or(platform::Dictionary()), std::string(key.text));
    }

    [[nodiscard]] static Value inOwnFile() { return inFile({[defaults::ownDomain() UTF8String]}); }

    std::unique_ptr<platform::Preferences> preferences = makePreferences();
    AppKitUserDefaults userDefaults;
};

} // namespace

TEST_F(StoreCheck, AFlushOfOneDomainWritesTheOthersToo) {
    preferences->setAppValue(key, "a text", full);

    EXPECT_TRUE(flush(solo));

    EXPECT_EQ(inFile(full), Value("a text"));
}

TEST_F(StoreCheck, WhatWasNotFlushedIsWrittenAtTheEnd) {
    preferences->setAppValue(key, "a text", full);
    EXPECT_FALSE(inFile(full).exists());

    preferences.reset();

    EXPECT_EQ(inFile(full), Value("a text"));
}

TEST_F(StoreCheck, OnlyTheUserCanReadADomain) {
    preferences->setAppValue(key, "a text", full);
    EXPECT_TRUE(flush(full));

    EXPECT_EQ(fs::status(fileOf(full)).permissions(), fs::perms::owner_read | fs::perms::owner_write);
}

TEST_F(StoreCheck, TheHostsFileIsKeptWhenItIsNoPropertyList) {
    const platform::ApplicationID host{[defaults::ownDomain() UTF8String]};
    std::ofstream(fileOf(host)) << "no property list";

    userDefaults.setObjectForKey("another text", {"Key"});

    EXPECT_TRUE(userDefaults.synchronize());
    EXPECT_EQ(inFile(host), Value("another text"));
    EXPECT_EQ(bytesOf(fileOf(host).string() + ".unreadable"), "no property list");
}

TEST_F(StoreCheck, AFlushWithoutAFolderFailsAtOnceAndLosesNothing) {
    {
        const FileInPlaceOfFolder obstacle;
        const auto begin = steady_clock::now();
        preferences->setAppValue(key, "a text", full);
        userDefaults.setObjectForKey("a text", {"Key"});

        EXPECT_FALSE(flush(full));
        EXPECT_FALSE(userDefaults.synchronize());

        EXPECT_LT(steady_clock::now() - begin, std::chrono::seconds(5))
            << "a flush should not wait for the folder";
        EXPECT_EQ(preferences->copyAppValue(key, full), Value("a text"));
        EXPECT_EQ(userDefaults.objectForKey({"Key"}), Value("a text"));
    }

    EXPECT_TRUE(flush(full));
    EXPECT_TRUE(userDefaults.synchronize());
    EXPECT_EQ(inFile(full), Value("a text"));
}

TEST_F(StoreCheck, FoldersThatThePaneMakesAreTheUsersAloneWhateverTheUmask) {
    const mode_t before = umask(0);
    const auto url = platform::URL::fileURLWithPath(folder / "container/Sorter");
    EXPECT_EQ(AppKitFileManager().createDirectoryAtURL(url, platform::IntermediateDirectories::create),
              std::nullopt);
    EXPECT_TRUE(AppKitPropertyLists().writeToURL({{"Key", true}}, url.appendingPathComponent("a file"),
                                                 platform::Atomically::yes));
    umask(before);

    EXPECT_EQ(fs::status(folder / "container").permissions(), fs::perms(0700));
    EXPECT_EQ(fs::status(folder / "container/Sorter").permissions(), fs::perms(0700));
    EXPECT_EQ(fs::status(folder / "container/Sorter/a file").permissions(), fs::perms(0600));
}

TEST_F(StoreCheck, TheStandardDefaultsShowWhatTheHostsFileDoesNotHoldYet) {
    NSUserDefaults* defaults = [NSUserDefaults standardUserDefaults];
    {
        const FileInPlaceOfFolder obstacle;
        userDefaults.setObjectForKey("a text", {"Key"});
        EXPECT_FALSE(userDefaults.synchronize());
        EXPECT_TRUE([[defaults objectForKey:@"Key"] isEqual:@"a text"]);
    }
    EXPECT_TRUE(userDefaults.synchronize());
    EXPECT_TRUE([[defaults objectForKey:@"Key"] isEqual:@"a text"]);
}

TEST_F(StoreCheck, WhatTheHostSetInItsStandardDefaultsIsFound) {
    [[NSUserDefaults standardUserDefaults] setObject:@"of the host" forKey:@"Key"];

    EXPECT_EQ(userDefaults.objectForKey({"Key"}), Value("of the host"));
}

TEST_F(StoreCheck, TheStandardDefaultsWriteUnderALockThatSaysWhoHasIt) {
    NSUserDefaults* defaults = [NSUserDefaults standardUserDefaults];
    const fs::path lock = files::DefaultsLock::placeIn(defaultsFolder());
    EXPECT_TRUE(userDefaults.synchronize());
    [defaults setObject:@"under the lock" forKey:@"Key"];

    // As GNUstep locks it, without an owner.
    fs::create_directories(lock);
    EXPECT_FALSE([defaults synchronize]) << "it cannot be known whether somebody has the lock";
    EXPECT_FALSE(inOwnFile().exists());

    fs::create_symlink(files::thisProcess(), lock / "owner");
    fs::last_write_time(lock, fs::file_time_type::clock::now() - std::chrono::hours(1));
    EXPECT_FALSE([defaults synchronize]) << "a process that lives has the lock";

    fs::remove_all(lock);
    EXPECT_TRUE([defaults synchronize]);
    EXPECT_EQ(inOwnFile(), Value("under the lock"));
    EXPECT_FALSE(fs::exists(lock));
}

TEST_F(StoreCheck, WhatWasSetIsSavedByTheRunLoop) {
    userDefaults.setBoolForKey(true, {"Key"});

    EXPECT_TRUE(eventually([] { return inOwnFile() == Value(true); }));
}

TEST_F(StoreCheck, ASaveThatFailedIsMadeAgainByTheRunLoop) {
    {
        const FileInPlaceOfFolder obstacle;
        preferences->setAppValue(key, "a text", full);
        EXPECT_FALSE(flush(full));
    }

    EXPECT_TRUE(eventually([] { return inFile(full) == Value("a text"); }));
}

} // namespace qbsp::appkit
