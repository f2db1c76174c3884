#include "stages/StoresStage.h"

#include "appkit/bridge/PropertyListConversion.h"
#include "appkit/bridge/Strings.h"
#include "appkit/stores/Preferences.h"
#include "appkit/stores/PropertyLists.h"
#include "appkit/stores/UserDefaults.h"
#include "defaults/Domains.h"

#include <gtest/gtest.h>

#import <Foundation/Foundation.h>

#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <sys/resource.h>

namespace qbsp::contracts {

namespace fs = std::filesystem;

using platform::Dictionary;

namespace {

const fs::path& folder() {
    static const fs::path path = fs::path(std::getenv("HOME")) / "GNUstep/Defaults";
    return path;
}

/// A disk on which no file can grow.
class FullDisk {
public:
    FullDisk() {
        std::signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &before_);
        const rlimit none{0, before_.rlim_max};
        setrlimit(RLIMIT_FSIZE, &none);
    }

    ~FullDisk() { setrlimit(RLIMIT_FSIZE, &before_); }

    FullDisk(const FullDisk&) = delete;
    FullDisk& operator=(const FullDisk&) = delete;

private:
    rlimit before_{};
};

class AppKitStage final : public StoresStage {
public:
    ~AppKitStage() override {
        // What a test only set would otherwise be saved during the next.
        EXPECT_TRUE(userDefaults_.synchronize());
        [[NSUserDefaults standardUserDefaults] removePersistentDomainForName:defaults::ownDomain()];
        [[NSUserDefaults standardUserDefaults] synchronize];
        for (const auto& file : fs::directory_iterator(folder()))
            if (file.path().extension() == ".plist")
                fs::remove(file);
    }

    platform::Preferences& preferences() override { return *preferences_; }

    platform::UserDefaults& userDefaults() override { return userDefaults_; }

    void otherProcessSets(const std::string& domain, const std::string& key,
                          const platform::Value& value) override {
        Dictionary contents = domainSeenByOthers(domain);
        contents[key] = value;
        // Not by the adapter, which has what waits for the file in this process.
        NSData* data =
            [NSPropertyListSerialization dataWithPropertyList:appkit::objectFromDictionary(contents)
                                                       format:NSPropertyListXMLFormat_v1_0
                                                      options:0
                                                        error:nullptr];
        EXPECT_TRUE([data writeToFile:appkit::nsString(fileOf(domain)) atomically:YES]);
    }

    void otherProcessSetsDefault(const std::string& key, const platform::Value& value) override {
        otherProcessSets([defaults::ownDomain() UTF8String], key, value);
    }

    Dictionary domainSeenByOthers(const std::string& domain) override {
        return appkit::AppKitPropertyLists()
            .dictionaryWithContentsOfFile(fileOf(domain))
            .value_or(Dictionary());
    }

    Dictionary defaultsSeenByOthers() override {
        return domainSeenByOthers([defaults::ownDomain() UTF8String]);
    }

    bool flushInVain(const std::function<void()>& set, const std::function<bool()>& flush) override {
        const FullDisk disk;
        set();
        return flush();
    }

private:
    static std::string fileOf(const std::string& domain) { return folder() / (domain + ".plist"); }

    std::unique_ptr<platform::Preferences> preferences_ = appkit::makePreferences();
    appkit::AppKitUserDefaults userDefaults_;
};

} // namespace

std::unique_ptr<StoresStage> StoresStage::appKit() {
    return std::make_unique<AppKitStage>();
}

} // namespace qbsp::contracts
