#include "PaneTest.h"

namespace qbsp {

class LoginItemCheckbox : public PaneTest {
protected:
    /// Shows the pane, sets the check box and leaves the pane again.
    void leaveWith(platform::ButtonState state) {
        select();
        controls().showAtLoginCheckbox->setState(state);
        forget();
        pane().willUnselect();
    }
};

TEST_F(LoginItemCheckbox, AddsTheSorterWhenItIsOn) {
    leaveWith(platform::ButtonState::on);

    EXPECT_EQ(transcript(), R"(
NSWorkspace removeObserver:()
NSApp isSandboxed() -> false
registrar registerApplication:("/PlugIn/Quarrybook Sorter.app") -> true
NSPreferencePane willUnselect()
)");
    EXPECT_EQ(shown("showAtLoginCheckbox", "state"), 1);
}

TEST_F(LoginItemCheckbox, RemovesTheSorterWhenItIsOff) {
    world.registered = true;

    leaveWith(platform::ButtonState::off);

    EXPECT_FALSE(world.registered);
    EXPECT_EQ(shown("showAtLoginCheckbox", "state"), 0);
}

TEST_F(LoginItemCheckbox, ChangesNothingInTheMixedState) {
    leaveWith(platform::ButtonState::mixed);

    EXPECT_EQ(transcript(), R"(
NSWorkspace removeObserver:()
NSApp isSandboxed() -> false
NSPreferencePane willUnselect()
)");
}

TEST_F(LoginItemCheckbox, ChangesNothingInAStateThatOnlyThePlatformKnows) {
    leaveWith(static_cast<platform::ButtonState>(2));

    EXPECT_EQ(transcript(), R"(
NSWorkspace removeObserver:()
NSApp isSandboxed() -> false
NSPreferencePane willUnselect()
)");
}

TEST_F(LoginItemCheckbox, IsAppliedAtEveryDeselectEvenWhenNobodyTouchedIt) {
    world.registered = true;
    select();

    pane().willUnselect();
    pane().willUnselect();

    EXPECT_EQ(transcript(), R"(
NSWorkspace removeObserver:()
NSApp isSandboxed() -> false
registrar registerApplication:("/PlugIn/Quarrybook Sorter.app") -> true
NSPreferencePane willUnselect()
NSWorkspace removeObserver:()
NSApp isSandboxed() -> false
registrar registerApplication:("/PlugIn/Quarrybook Sorter.app") -> true
NSPreferencePane willUnselect()
)");
}

TEST_F(LoginItemCheckbox, ShowsOffAfterTheAlertWhenTheSorterCouldNotBeAdded) {
    world.registrarAdds = false;

    leaveWith(platform::ButtonState::on);

    EXPECT_EQ(transcript(), R"(
NSWorkspace removeObserver:()
NSApp isSandboxed() -> false
registrar registerApplication:("/PlugIn/Quarrybook Sorter.app") -> false
NSBundle localizedStringForKey:value:table:("Could not add the login item.", "", null) -> "Could not add the login item."
NSAlert setAlertStyle:(2)
NSAlert setMessageText:("Could not add the login item.")
NSBundle localizedStringForKey:value:table:("You may not have permissions to change the `Login Items'. Do you want to check this in the System Preferences > Accounts preferences?", "", null) -> "You may not have permissions to change the `Login Items'. Do you want to check this in the System Preferences > Accounts preferences?"
NSAlert setInformativeText:("You may not have permissions to change the `Login Items'. Do you want to check this in the System Preferences > Accounts preferences?")
NSBundle localizedStringForKey:value:table:("Check", "", null) -> "Check"
NSAlert addButtonWithTitle:("Check")
NSBundle localizedStringForKey:value:table:("Cancel", "", null) -> "Cancel"
NSAlert addButtonWithTitle:("Cancel")
NSAlert runModal() -> 1001
showAtLoginCheckbox setState:(0)
NSPreferencePane willUnselect()
)");
}

TEST_F(LoginItemCheckbox, ShowsOnAfterTheAlertWhenTheSorterCouldNotBeRemoved) {
    world.registrarRemoves = false;

    leaveWith(platform::ButtonState::off);

    const auto asked = operations();
    EXPECT_EQ(asked.at(2), R"(registrar unregisterApplication:("/PlugIn/Quarrybook Sorter.app") -> false)");
    EXPECT_EQ(asked.at(5), R"(NSAlert setMessageText:("Could not remove the login item."))");
    EXPECT_EQ(asked.at(12), "NSAlert runModal() -> 1001");
    EXPECT_EQ(asked.at(13), "showAtLoginCheckbox setState:(1)");
    EXPECT_EQ(asked.at(14), "NSPreferencePane willUnselect()");
    EXPECT_EQ(asked.size(), 15U) << "something was called after the inherited message";
}

TEST_F(LoginItemCheckbox, AlertsAtEveryDeselectWithoutARegistrar) {
    world.loader = simulated::Loader::absent;
    select();

    pane().willUnselect();
    EXPECT_EQ(shown("showAtLoginCheckbox", "state"), 1);
    EXPECT_NE(transcript().find("Could not remove the login item."), std::string::npos);

    pane().willUnselect();
    EXPECT_EQ(shown("showAtLoginCheckbox", "state"), 0);
    EXPECT_NE(transcript().find("Could not add the login item."), std::string::npos);
}

TEST_F(LoginItemCheckbox, CountsAsOffWhenItIsNotConnected) {
    world.disconnected = {"showAtLoginCheckbox"};
    world.registrarRemoves = false;
    select();

    pane().willUnselect();

    const auto asked = operations();
    EXPECT_EQ(asked.at(2), R"(registrar unregisterApplication:("/PlugIn/Quarrybook Sorter.app") -> false)");
    EXPECT_EQ(asked.back(), "NSPreferencePane willUnselect()");
}

TEST_F(LoginItemCheckbox, DoesNotKeepTheRestFromBeingSavedWhenItFails) {
    world.registrarRemoves = false;
    storeHideList(full, platform::Dictionary{{"Mail", false}});
    select();
    editRow(0, true);

    pane().willUnselect();

    EXPECT_EQ(hideList(full), (platform::Dictionary{{"Mail", true}}));
}

} // namespace qbsp
