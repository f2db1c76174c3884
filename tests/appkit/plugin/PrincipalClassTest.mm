#include "LoadedPane.h"
#include "on_appkit/ContractUser.h"

#include <algorithm>
#include <set>

namespace {

using PrincipalClass = LoadedPane;

bool flag(NSPreferencePane* pane, NSString* key) {
    return [[pane valueForKey:key] boolValue];
}

} // namespace

TEST_F(PrincipalClass, RespondsToEveryOperationOfThePane) {
    NSArray* operations = [@"initWithBundle: dealloc mainViewDidLoad loadHideAppData willSelect willUnselect "
                            "toggleSorterProcess: resetFullscreenSettings: "
                            "shortcutRecorder:isKeyCode:andFlagsTaken:reason: enableAttentionLabel: "
                            "shortcutRecorder:keyComboDidChange: updateToggleButtonTitle appDied: "
                            "showLoginItemEditFailureAlert: showSorterApplication closeSorterApplication "
                            "deleteFullScreenSettings numberOfRowsInTableView: "
                            "tableView:objectValueForTableColumn:row: "
                            "tableView:setObjectValue:forTableColumn:row: indexOfAppInList: addHideApp: "
                            "appIsPresentInLoginItems sorterAppURL setSorterAppURL: loginItemRegistrar "
                            "setLoginItemRegistrar:" componentsSeparatedByString:@" "];

    for (NSUInteger index = 0; index < [operations count]; ++index) {
        NSString* operation = [operations objectAtIndex:index];
        EXPECT_TRUE([pane respondsToSelector:NSSelectorFromString(operation)]) << [operation UTF8String];
    }
    EXPECT_TRUE([[pane class] respondsToSelector:@selector(initialize)]);
}

TEST_F(PrincipalClass, HasAnIconInSixteenTo512Pixels) {
    NSBundle* bundle = [NSBundle bundleWithPath:@PANE_BUNDLE];
    NSString* file = [bundle objectForInfoDictionaryKey:@"NSPrefPaneIconFile"];
    NSImage* icon = [[[NSImage alloc] initWithContentsOfFile:[bundle pathForResource:file
                                                                              ofType:nil]] autorelease];
    std::set<NSInteger> sizes;
    for (NSUInteger index = 0; index < [[icon representations] count]; ++index)
        sizes.insert([[[icon representations] objectAtIndex:index] pixelsWide]);

    EXPECT_EQ(sizes, (std::set<NSInteger>{16, 32, 48, 64, 128, 256, 512}));
    // Hosts that do not scale it show it as large as any other icon.
    EXPECT_EQ([icon size].width, 48);
}

TEST_F(PrincipalClass, HasTheRegistrarsProtocolKnownToTheRuntime) {
    EXPECT_NE(NSProtocolFromString(@"QBSPSorterControl"), static_cast<Protocol*>(nil));
}

TEST_F(PrincipalClass, LoadsTheStoredListAndFindsItsRowsIgnoringCase) {
    store(hideFlags(@"Atlas"), hideListKey, @"com.quarrybook.Sorter");

    [pane loadHideAppData];

    EXPECT_EQ([pane numberOfRowsInTableView:nil], 1);
    EXPECT_EQ([pane indexOfAppInList:@"ATLAS"], 0);
    EXPECT_EQ([pane indexOfAppInList:@"Books"], -1);
}

TEST_F(PrincipalClass, StoresTheCombinationOfItsOwnRecorderAndRefusesItToTheOther) {
    id clip = [[pane mainView] valueForKey:@"clipHotKeyRecorder"];
    id note = [[pane mainView] valueForKey:@"noteHotKeyRecorder"];
    NSString* reason = nil;

    [pane shortcutRecorder:clip keyComboDidChange:KeyCombo{.flags = 0x120000, .code = 8}];

    EXPECT_EQ([[NSUserDefaults standardUserDefaults] integerForKey:@"Sorter.ClipHotKeyCode"], 8);
    EXPECT_TRUE(flag(pane, @"shouldRestartSorter"));
    EXPECT_TRUE([pane shortcutRecorder:note isKeyCode:8 andFlagsTaken:0x120000 reason:&reason]);
    EXPECT_EQ([reason UTF8String], std::string("this combination is used for the `Copy Selection' hot key"));
    EXPECT_TRUE([pane shortcutRecorder:note isKeyCode:8 andFlagsTaken:0x120000 reason:nullptr]);
    EXPECT_FALSE([pane shortcutRecorder:clip isKeyCode:8 andFlagsTaken:0x120000 reason:&reason]);
}

TEST_F(PrincipalClass, StoresNothingForARecorderThatIsNotItsOwn) {
    [pane shortcutRecorder:@"another" keyComboDidChange:KeyCombo{.flags = 0x120000, .code = 8}];

    EXPECT_EQ([[NSUserDefaults standardUserDefaults] objectForKey:@"Sorter.ClipHotKeyCode"], nil);
    EXPECT_EQ([[NSUserDefaults standardUserDefaults] objectForKey:@"Sorter.NoteHotKeyCode"], nil);
    EXPECT_TRUE(flag(pane, @"shouldRestartSorter"));
    EXPECT_FALSE([pane shortcutRecorder:@"another" isKeyCode:8 andFlagsTaken:0x120000 reason:nullptr]);
}

TEST_F(PrincipalClass, RaisesTheRestartFlagForEnableAttentionLabel) {
    [pane enableAttentionLabel:nil];

    EXPECT_TRUE(flag(pane, @"shouldRestartSorter"));
}

TEST_F(PrincipalClass, RefreshesTheButtonWhenTheEditionsSorterDied) {
    [[[pane mainView] valueForKey:@"toggleLaunchButton"] setTitle:@""];
    const auto died = [&](NSString* identifier) {
        NSDictionary* info = [NSDictionary dictionaryWithObject:identifier
                                                         forKey:@"NSApplicationBundleIdentifier"];
        [pane appDied:[NSNotification notificationWithName:@"any" object:nil userInfo:info]];
    };

    died(@"com.quarrybook.SoloSorter");
    EXPECT_EQ([buttonTitle() UTF8String], std::string());

    died(@"com.quarrybook.Sorter");
    EXPECT_EQ([buttonTitle() UTF8String], std::string("Show"));
}

TEST_F(PrincipalClass, ShowsTheLoginItemAlertWithThatMessage) {
    ContractUser* user = [[[ContractUser alloc] init] autorelease];
    user->button = "Cancel";
    [user watch];

    [pane showLoginItemEditFailureAlert:@"No entry."];

    [user leave];
    EXPECT_EQ(std::ranges::count(user->texts, "No entry."), 1);
}

TEST_F(PrincipalClass, TakesAndGivesItsPropertiesByKey) {
    NSURL* url = [NSURL fileURLWithPath:@"/elsewhere/Sorter.app"];
    id registrar = [[[HostRegistrar alloc] init] autorelease];

    [pane setValue:url forKey:@"sorterAppURL"];
    [pane setValue:registrar forKey:@"loginItemRegistrar"];
    [pane setValue:[NSNumber numberWithBool:YES] forKey:@"deleteFullScreenSettingsInSorter"];

    EXPECT_TRUE([[[pane valueForKey:@"sorterAppURL"] path] isEqual:[url path]]);
    EXPECT_EQ([pane valueForKey:@"loginItemRegistrar"], registrar);
    EXPECT_TRUE(flag(pane, @"deleteFullScreenSettingsInSorter"));
    EXPECT_TRUE(flag(pane, @"isSorterProApp"));
    EXPECT_FALSE(flag(pane, @"hideAppsUpdated"));
}

TEST_F(PrincipalClass, ForgetsTheRegistrarAndTheLocationThatAreSetToNil) {
    [pane setValue:nil forKey:@"sorterAppURL"];
    [pane setValue:nil forKey:@"loginItemRegistrar"];

    EXPECT_EQ([pane valueForKey:@"sorterAppURL"], nil);
    EXPECT_EQ([pane valueForKey:@"loginItemRegistrar"], nil);
}

TEST_F(PrincipalClass, AsksTheRegistrarThatItWasGiven) {
    hostRegistrar().isRegistered = true;
    [pane setValue:[[[HostRegistrar alloc] init] autorelease] forKey:@"loginItemRegistrar"];

    [pane willSelect];

    EXPECT_EQ(hostRegistrar().messages, std::vector<std::string>{"applicationIsRegistered:"});
}

TEST_F(PrincipalClass, ResetsTheListOnceTheSorterWasStoppedWhenSomebodyAskedForItByKey) {
    store(hideFlags(@"Atlas"), hideListKey, @"com.quarrybook.Sorter");
    executeIdle(makeApplication("Quarrybook Sorter", "com.quarrybook.Sorter"));
    ASSERT_TRUE(eventually([&] {
        [pane updateToggleButtonTitle];
        return [buttonTitle() isEqualToString:@"Quit"];
    }));
    [pane setValue:[NSNumber numberWithBool:YES] forKey:@"deleteFullScreenSettingsInSorter"];

    [pane toggleSorterProcess:nil];

    EXPECT_EQ(hostRegistrar().messages, std::vector<std::string>{"closeSorterApplication"});
    EXPECT_EQ(stored(hideListKey, @"com.quarrybook.Sorter"), nil);
    EXPECT_FALSE(flag(pane, @"deleteFullScreenSettingsInSorter"));
}
