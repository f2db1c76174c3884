#include "PaneTest.h"

namespace qbsp {

class MainView : public PaneTest {
protected:
    /// Sets the view up and keeps the transcript.
    void setUpView() {
        createPane();
        session.loadView();
    }

    /// The calls that hide something.
    std::vector<std::string> hidings() {
        std::vector<std::string> all = operations();
        std::erase_if(all,
                      [](const std::string& line) { return line.find("setHidden:") == std::string::npos; });
        return all;
    }
};

TEST_F(MainView, IsSetUpInThisOrder) {
    setUpView();

    EXPECT_EQ(transcript(), R"(
NSApp isPro() -> true
NSApp isSandboxed() -> false
NSBundle executablePath("registrar") -> "/PlugIn/SorterPlugin"
NSBundle localizedStringForKey:value:table:("Availability:", "", null) -> "Availability:"
availabilityLabel setStringValue:("Availability:")
NSBundle localizedStringForKey:value:table:("Start Sorter at login", "", null) -> "Start Sorter at login"
showAtLoginCheckbox setTitle:("Start Sorter at login")
NSBundle localizedStringForKey:value:table:("Visibility:", "", null) -> "Visibility:"
visibilityLabel setStringValue:("Visibility:")
NSBundle localizedStringForKey:value:table:("Full", "", null) -> "Full"
visibilityButton setTitle:("Full")
NSBundle localizedStringForKey:value:table:("The Sorter helps to collect information from any application to specified groups even if a database is not available.\n\nThe Sorter appears as a `Quarrybook' tab attached to a screen border.", "", null) -> "The Sorter helps to collect information from any application to specified groups even if a database is not available.\n\nThe Sorter appears as a `Quarrybook' tab attached to a screen border."
descriptionLabel setStringValue:("The Sorter helps to collect information from any application to specified groups even if a database is not available.\n\nThe Sorter appears as a `Quarrybook' tab attached to a screen border.")
NSBundle localizedStringForKey:value:table:("Take Note Hotkey:", "", null) -> "Take Note Hotkey:"
takeNoteLabel setStringValue:("Take Note Hotkey:")
NSBundle localizedStringForKey:value:table:("Copy Selection Hotkey:", "", null) -> "Copy Selection Hotkey:"
copySelectionLabel setStringValue:("Copy Selection Hotkey:")
NSBundle localizedStringForKey:value:table:("Sorter needs to restart.", "", null) -> "Sorter needs to restart."
attentionLabel setStringValue:("Sorter needs to restart.")
attentionLabel setHidden:(true)
NSBundle localizedStringForKey:value:table:("Hide Sorter in Full Screen:", "", null) -> "Hide Sorter in Full Screen:"
hideAppLabel setStringValue:("Hide Sorter in Full Screen:")
NSBundle localizedStringForKey:value:table:("Reset Fullscreen Settings", "", null) -> "Reset Fullscreen Settings"
resetFullscreenSettingsButton setTitle:("Reset Fullscreen Settings")
hideAppsTable tableColumnWithIdentifier:("1") -> true
NSBundle localizedStringForKey:value:table:("Application", "", null) -> "Application"
hideAppsTable setHeaderStringValue:("1", "Application")
hideAppsTable tableColumnWithIdentifier:("2") -> true
NSBundle localizedStringForKey:value:table:("Hide", "", null) -> "Hide"
hideAppsTable setHeaderStringValue:("2", "Hide")
NSApp isSandboxed() -> false
NSWorkspace addObserver:selector:name:object:("appDied:", "NSWorkspaceDidTerminateApplicationNotification", null)
NSPreferencePane mainViewDidLoad()
)");
}

TEST_F(MainView, HidesOnlyTheRestartNoticeInTheOrdinaryHost) {
    setUpView();

    EXPECT_EQ(hidings(), std::vector<std::string>{"attentionLabel setHidden:(true)"});
}

TEST_F(MainView, HidesTheControlsUnusedInTheSandboxedHostInThisOrder) {
    world.sandboxed = true;

    setUpView();

    EXPECT_EQ(hidings(), (std::vector<std::string>{
                             "attentionLabel setHidden:(true)", "showAtLoginCheckbox setHidden:(true)",
                             "availabilityLabel setHidden:(true)", "copySelectionLabel setHidden:(true)",
                             "clipHotKeyRecorder setHidden:(true)"}));
}

TEST_F(MainView, HidesBetweenTheHeadersAndTheObserver) {
    world.sandboxed = true;

    setUpView();

    const auto asked = operations();
    EXPECT_EQ(asked.at(asked.size() - 8), R"(hideAppsTable setHeaderStringValue:("2", "Hide"))");
    EXPECT_EQ(asked.at(asked.size() - 7), "NSApp isSandboxed() -> true");
    EXPECT_EQ(asked.at(asked.size() - 1), "NSPreferencePane mainViewDidLoad()");
}

TEST_F(MainView, GivesHiddenControlsTheirTextsToo) {
    world.sandboxed = true;

    setUpView();

    EXPECT_EQ(shown("showAtLoginCheckbox", "title"), "Start Sorter at login");
    EXPECT_EQ(shown("availabilityLabel", "text"), "Availability:");
    EXPECT_EQ(shown("attentionLabel", "text"), "Sorter needs to restart.");
}

TEST_F(MainView, LeavesColumnsOfOtherIdentifiersTheirHeaders) {
    world.columns = {"2", "name", "10"};

    setUpView();

    EXPECT_EQ(shown("hideAppsTable", "columns"),
              (platform::Array{platform::Array{"2", "Hide"}, platform::Array{"name", ""},
                               platform::Array{"10", ""}}));
}

TEST_F(MainView, LooksUpTheTextOfAColumnThatIsMissing) {
    world.columns = {"2"};

    setUpView();

    const auto text = transcript();
    EXPECT_NE(text.find(R"(
hideAppsTable tableColumnWithIdentifier:("1") -> false
NSBundle localizedStringForKey:value:table:("Application", "", null) -> "Application"
hideAppsTable tableColumnWithIdentifier:("2") -> true
)"),
              std::string::npos)
        << text;
}

TEST_F(MainView, PassesOverControlsThatAreNotConnected) {
    world.sandboxed = true;
    world.disconnected.insert(simulated::controlFields().begin(), simulated::controlFields().end());

    setUpView();

    auto asked = operations();
    std::erase_if(asked,
                  [](const std::string& line) { return line.starts_with("NSBundle localizedString"); });
    EXPECT_EQ(asked, (std::vector<std::string>{"NSApp isPro() -> true", "NSApp isSandboxed() -> true",
                                               "NSApp isSandboxed() -> true",
                                               "NSWorkspace addObserver:selector:name:object:(\"appDied:\", "
                                               "\"NSWorkspaceDidTerminateApplicationNotification\", null)",
                                               "NSPreferencePane mainViewDidLoad()"}));
}

TEST_F(MainView, MarksTheHideListAsUnchanged) {
    storeHideList(full, platform::Dictionary{{"Mail", false}});
    select();
    editRow(0, true);

    pane().mainViewDidLoad();

    EXPECT_FALSE(pane().hideAppsUpdated());
}

TEST_F(MainView, ReadsNoStoredSettings) {
    storeHideList(full, platform::Dictionary{{"Mail", false}});
    world.defaults.put("Sorter.ClipHotKeyCode", 8);

    setUpView();

    EXPECT_FALSE(pane().tableArray().exists());
    EXPECT_EQ(shown("clipHotKeyRecorder", "code"), std::int64_t{-1});
}

TEST_F(MainView, AsksForTheSandboxAfreshBeforeItHides) {
    createPane();
    world.sandboxed = true;

    session.loadView();

    EXPECT_EQ(shown("clipHotKeyRecorder", "hidden"), true);
}

} // namespace qbsp
