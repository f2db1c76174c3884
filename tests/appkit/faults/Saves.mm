#include "Saves.h"

#include "appkit/services/Applications.h"
#include "appkit/services/FileManager.h"
#include "appkit/services/HostProcess.h"
#include "appkit/stores/Preferences.h"
#include "appkit/stores/PropertyLists.h"
#include "appkit/stores/UserDefaults.h"
#include "pane/QBSPPreferencePane.h"
#include "simulated/SimulatedPlatform.h"
#include "simulated/SimulatedView.h"

#import <AppKit/AppKit.h>

#include <cstdlib>
#include <memory>
#include <sys/wait.h>
#include <tuple>
#include <unistd.h>
#include <utility>

namespace faults {

using namespace qbsp;

namespace {

constexpr platform::ApplicationID sorter{"com.quarrybook.Sorter"};
constexpr platform::BundleIdentifier embedded{"Z3K8WQ4N7P.quarry2.QuarrybookSorter"};
constexpr platform::KeyCombo commandN{platform::modifiers::cocoa::command, 45};

enum class Build { ordinary, sandboxed };

/// Whatever is stored is stored by the real adapters; the rest is simulated.
struct RealStores : simulated::SimulatedPlatform {
    appkit::AppKitLog log;
    appkit::AppKitUserDefaults userDefaults;
    std::unique_ptr<platform::Preferences> ownedPreferences = appkit::makePreferences();
    platform::Preferences& preferences = *ownedPreferences;
    appkit::AppKitFileManager files;
    appkit::AppKitPropertyLists propertyLists;
    appkit::AppKitServiceManagement serviceManagement;

    [[nodiscard]] bool save() {
        const bool preferencesAreSaved = preferences.synchronize(
            sorter, platform::PreferencesUser::currentUser, platform::PreferencesHost::anyHost);
        return userDefaults.synchronize() && preferencesAreSaved;
    }
};

/// The pane, shown.
struct ShownPane : RealStores {
    explicit ShownPane(Build build) {
        world.sandboxed = build == Build::sandboxed;
        pane = QBSPPreferencePane::initWithBundle(platform::servicesOf<RealStores>(*this), base);
        view = std::make_unique<simulated::SimulatedView>(*pane, world, transcript);
        pane->mainViewDidLoad();
        pane->willSelect();
    }

    void hideFirstApplication() {
        platform::TableView& table = *pane->controls.hideAppsTable;
        pane->tableViewSetObjectValueForTableColumnRow(
            table, std::int32_t{1}, table.tableColumnWithIdentifier(platform::ColumnIdentifier{"2"}), 0);
    }

    simulated::SimulatedPaneBase base{world, transcript};
    std::shared_ptr<QBSPPreferencePane> pane;
    std::unique_ptr<simulated::SimulatedView> view;
};

RealStores& stores() {
    static RealStores stores;
    return stores;
}

// The process that it is made in is a test's own, and ends with it.
ShownPane& shownPane(Build build) {
    return *std::make_unique<ShownPane>(build).release();
}

Work leavingThePane(Build build) {
    return {.prepare =
                [build] {
                    ShownPane& shown = shownPane(build);
                    shown.hideFirstApplication();
                    return [&shown] {
                        shown.pane->willUnselect();
                    };
                },
            .afterwards =
                [] {
                    return stores().save();
                }};
}

Work recording(Build build, platform::Outlet<platform::RecorderControl> PaneControls::*recorder) {
    return {.prepare =
                [=] {
                    const auto pane = shownPane(build).pane;
                    return [=] {
                        pane->shortcutRecorderKeyComboDidChange(*(pane->controls.*recorder), commandN);
                    };
                },
            .afterwards =
                [] {
                    return stores().save();
                }};
}

void runTheLoopOnce() {
    [[NSRunLoop currentRunLoop] runMode:NSDefaultRunLoopMode beforeDate:[NSDate date]];
}

Work startingTheClass() {
    return {.prepare =
                [] {
                    return [] {
                        stores().userDefaults.setBoolForKey(true, {"SorterTabIsInvisible"});
                        runTheLoopOnce();
                    };
                },
            .afterwards =
                [] {
                    return stores().save();
                }};
}

/// Other code of the host sets something, after what GNUstep's defaults read may have gone wrong.
Work letTheHostSet() {
    return {.prepare =
                [] {
                    return [] {
                        std::ignore = stores().userDefaults.synchronize();
                    };
                },
            .afterwards =
                [] {
                    NSUserDefaults* defaults = [NSUserDefaults standardUserDefaults];
                    [defaults setObject:@"the host's" forKey:@"key"];
                    return [defaults synchronize] == YES;
                }};
}

Work quitting() {
    return {.prepare =
                [] {
                    stores().preferences.setAppValue({"UserSpecifiedFullScreenApplications"},
                                                     platform::Dictionary{{"Atlas", true}}, sorter);
                    return [] {
                        [[NSNotificationCenter defaultCenter]
                            postNotificationName:NSApplicationWillTerminateNotification
                                          object:nil];
                    };
                },
            .afterwards =
                [] {
                    return true;
                }};
}

Work switchingTheLoginItem(bool on) {
    const auto change = [on] {
        stores().serviceManagement.loginItemSetEnabled(embedded, on);
    };
    return {.prepare = [=]() -> std::function<void()> {
                if (!on)
                    stores().serviceManagement.loginItemSetEnabled(embedded, true);
                return change;
            },
            .afterwards =
                [change] {
                    change();
                    return true;
                }};
}

Contents homeBefore() {
    // What GNUstep's own writer would change: an emoji, a real, a wide integer.
    const std::string ofOthers = R"(<?xml version="1.0" encoding="UTF-8"?>
<plist version="1.0"><dict>
    <key>emoji</key><string>😀</string>
    <key>real</key><real>0.30000000000000004</real>
    <key>wide</key><integer>18446744073709551615</integer>
)";
    return {{"GNUstep/Defaults/FaultTests.plist",
             ofOthers + "<key>SorterTabIsInvisible</key><false/></dict></plist>"},
            {"GNUstep/Defaults/com.quarrybook.Sorter.plist",
             ofOthers + "<key>UserSpecifiedFullScreenApplications</key><dict>"
                        "<key>Atlas</key><false/><key>Films</key><true/></dict></dict></plist>"},
            {".local/share/Group Containers/Z3K8WQ4N7P.quarry2/Sorter/clipHotKey.dictionary",
             R"(<plist><dict><key>Sorter.ClipHotKeyCode</key><integer>8</integer></dict></plist>)"},
            {".config/autostart/another.desktop", "[Desktop Entry]\nType=Application\n"}};
}

Contents homeWithLink() {
    Contents home = homeBefore();
    std::string& domain = home.at("GNUstep/Defaults/com.quarrybook.Sorter.plist");
    home["elsewhere/domain.plist"] = std::exchange(domain, "-> ../../elsewhere/domain.plist");
    return home;
}

} // namespace

std::vector<Save> allSaves() {
    const Contents home = homeBefore();
    std::vector<Save> saves;
    for (const Build build : {Build::ordinary, Build::sandboxed}) {
        const std::string name = build == Build::ordinary ? "ordinary" : "sandboxed";
        saves.push_back({name + " list", home, leavingThePane(build)});
        saves.push_back({name + " note hot key", home, recording(build, &PaneControls::noteHotKeyRecorder)});
        saves.push_back({name + " clip hot key", home, recording(build, &PaneControls::clipHotKeyRecorder)});
    }
    saves.push_back({"list behind a link", homeWithLink(), leavingThePane(Build::ordinary)});
    saves.push_back({"host's own key", home, letTheHostSet()});
    saves.push_back({"tab's visibility", home, startingTheClass()});
    saves.push_back({"list at the end", home, quitting(), Afterwards::isLost});
    saves.push_back({"login item on", home, switchingTheLoginItem(true), Afterwards::isRepeated});
    saves.push_back({"login item off", home, switchingTheLoginItem(false), Afterwards::isRepeated});
    return saves;
}

bool anotherProcessSaves() {
    const pid_t process = fork();
    if (process == 0) {
        stores().preferences.setAppValue({"later"}, true, sorter);
        stores().userDefaults.setObjectForKey(true, {"later"});
        _exit(stores().save() ? EXIT_SUCCESS : EXIT_FAILURE);
    }
    int status = 0;
    waitpid(process, &status, 0);
    return status == 0;
}

} // namespace faults
