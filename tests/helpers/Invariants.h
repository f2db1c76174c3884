#pragma once

#include "Asked.h"
#include "Stage.h"

#include <gtest/gtest.h>

namespace qbsp {

/// What is true of a pane before and after each of its operations, whatever the platform returns.
class Invariants {
public:
    /// Remembers the present state.
    explicit Invariants(Stage& stage)
        : stage_(stage), restart_(stage.pane().shouldRestartSorter()),
          deleteSettings_(stage.pane().deleteFullScreenSettingsInSorter()),
          updated_(stage.pane().hideAppsUpdated()), defaults_(stage.world.defaults.contents()) {
        for (const char* const sorter : {full, solo})
            domains_[sorter] = stage.world.domains[sorter].contents();
    }

    /// Checks them after an operation that made these calls.
    void check(const Asked& asked) {
        EXPECT_EQ(stage_.platform.preferences.openSuites(), 0U);
        checkPosts(asked.operations());
        checkFlags(asked);
        checkDefaults();
        for (const char* const sorter : {full, solo})
            checkDomain(sorter, asked);
    }

private:
    /// Nothing is posted unless the call before it allowed it: that call decides on the notice.
    static void checkPosts(const std::vector<std::string>& lines) {
        for (std::size_t i = 0; i < lines.size(); ++i) {
            if (!lines[i].starts_with(Asked::post))
                continue;
            ASSERT_GT(i, 0U);
            const std::string& gate = lines[i - 1];
            if (lines[i].find("QBSSorterHideAppUpdated") != std::string::npos) {
                EXPECT_TRUE(gate.starts_with("QBApplicationIsRunning") && gate.ends_with("-> true")) << gate;
            } else if (lines[i].find("QBSSorterPreferencesUpdated") != std::string::npos) {
                EXPECT_EQ(gate, "NSUserDefaults synchronize() -> true");
            } else {
                EXPECT_TRUE(gate.starts_with("NSUserDefaults synchronize()")) << gate;
            }
        }
    }

    /// A flag is cleared only when what it stands for was done.
    void checkFlags(const Asked& asked) const {
        const QBSPPreferencePane& pane = stage_.pane();
        if (restart_ && !pane.shouldRestartSorter()) {
            EXPECT_TRUE(asked.posts("QBSSorterPreferencesUpdated") > 0 ||
                        asked.has("NSApp isSandboxed() -> false"));
        }
        if (!restart_ && pane.shouldRestartSorter()) {
            EXPECT_EQ(asked.posts("QBSSorterShortcutKeysChanged"), 1);
        }
        EXPECT_TRUE(deleteSettings_ || !pane.deleteFullScreenSettingsInSorter());
        if (deleteSettings_ && !pane.deleteFullScreenSettingsInSorter()) {
            EXPECT_TRUE(asked.has("CFPreferencesSetValue"));
        }
        if (updated_ && !pane.hideAppsUpdated()) {
            EXPECT_TRUE(asked.has("CFPreferencesSetAppValue") ||
                        asked.has("NSPreferencePane mainViewDidLoad"));
        }
    }

    /// In the host's defaults nothing changes but hot keys.
    void checkDefaults() const {
        for (const auto& [key, value] : defaults_) {
            const platform::Value now = stage_.world.defaults.value(key);
            const bool isHotKey = key.find("HotKey") != std::string::npos;
            EXPECT_TRUE(isHotKey ? now.exists() : now == value) << key;
        }
    }

    /// In a Sorter's domain nothing changes but the list, and that only by writing it.
    void checkDomain(const char* sorter, const Asked& asked) {
        const bool written = asked.has("CFPreferencesSet");
        for (const auto& [key, value] : domains_[sorter]) {
            const bool mayChange = written && key == hideListKey;
            EXPECT_TRUE(mayChange || stage_.world.domains[sorter].value(key) == value)
                << sorter << " " << key;
        }
    }

    Stage& stage_;
    bool restart_;
    bool deleteSettings_;
    bool updated_;
    platform::Dictionary defaults_;
    std::map<std::string, platform::Dictionary> domains_;
};

} // namespace qbsp
