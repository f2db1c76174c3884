#include "PaneTest.h"

namespace qbsp {

namespace {

/// Where the view shows a text, and which.
struct ShownText {
    const char* field;
    const char* as;
    const char* english;
};

constexpr ShownText shownTexts[] = {
    {"availabilityLabel", "text", "Availability:"},
    {"showAtLoginCheckbox", "title", "Start Sorter at login"},
    {"visibilityLabel", "text", "Visibility:"},
    {"visibilityButton", "title", "Full"},
    {"descriptionLabel", "text",
     "The Sorter helps to collect information from any application to specified groups even if a database is "
     "not "
     "available.\n\nThe Sorter appears as a `Quarrybook' tab attached to a screen border."},
    {"takeNoteLabel", "text", "Take Note Hotkey:"},
    {"copySelectionLabel", "text", "Copy Selection Hotkey:"},
    {"attentionLabel", "text", "Sorter needs to restart."},
    {"hideAppLabel", "text", "Hide Sorter in Full Screen:"},
    {"resetFullscreenSettingsButton", "title", "Reset Fullscreen Settings"},
    {"toggleLaunchButton", "title", "Show"},
};

} // namespace

using Texts = PaneTest;

TEST_F(Texts, AreEnglishWithoutTranslations) {
    select();

    for (const ShownText& text : shownTexts)
        EXPECT_EQ(shown(text.field, text.as), text.english) << text.field;
    EXPECT_EQ(shown("hideAppsTable", "columns"),
              (platform::Array{platform::Array{"1", "Application"}, platform::Array{"2", "Hide"}}));
}

TEST_F(Texts, AreTranslatedOneByOne) {
    for (const ShownText& text : shownTexts)
        world.translations[text.english] = std::string("«") + text.field + "»";
    world.translations["Application"] = "Programm";
    world.translations["Hide"] = "Ausblenden";

    select();

    for (const ShownText& text : shownTexts)
        EXPECT_EQ(shown(text.field, text.as), std::string("«") + text.field + "»");
    EXPECT_EQ(shown("hideAppsTable", "columns"),
              (platform::Array{platform::Array{"1", "Programm"}, platform::Array{"2", "Ausblenden"}}));
}

TEST_F(Texts, OfTheButtonAreTranslatedWhileTheSorterRuns) {
    world.translations["Quit"] = "Beenden";
    world.running.insert(full);

    select();

    EXPECT_EQ(shown("toggleLaunchButton", "title"), "Beenden");
}

TEST_F(Texts, OfTheAlertAreTranslated) {
    world.translations["Could not add the login item."] = "m";
    world.translations
        ["You may not have permissions to change the `Login Items'. Do you want to check this in "
         "the System Preferences > Accounts preferences?"] = "i";
    world.translations["Check"] = "1";
    world.translations["Cancel"] = "2";
    createPane();

    pane().showLoginItemEditFailureAlert("Could not add the login item.");

    auto asked = operations();
    std::erase_if(asked, [](const std::string& line) { return line.starts_with("NSBundle"); });
    EXPECT_EQ(asked,
              (std::vector<std::string>{
                  "NSAlert setAlertStyle:(2)", R"(NSAlert setMessageText:("Could not add the login item."))",
                  R"(NSAlert setInformativeText:("i"))", R"(NSAlert addButtonWithTitle:("1"))",
                  R"(NSAlert addButtonWithTitle:("2"))", "NSAlert runModal() -> 1001"}));
}

TEST_F(Texts, OfFailedLoginItemChangesAreTranslatedForTheAlert) {
    world.translations["Could not remove the login item."] = "nicht entfernt";
    world.translations["Could not add the login item."] = "nicht angelegt";
    world.registrarAdds = world.registrarRemoves = false;
    select();

    pane().willUnselect();
    pane().willUnselect();

    const auto text = transcript();
    EXPECT_NE(text.find(R"(setMessageText:("nicht entfernt"))"), std::string::npos);
    EXPECT_NE(text.find(R"(setMessageText:("nicht angelegt"))"), std::string::npos);
}

TEST_F(Texts, OfRefusedHotKeysAreTranslated) {
    world.translations["this combination is used for the `Take Note' hot key"] = "schon Notiz";
    world.translations["this combination is used for the `Copy Selection' hot key"] = "schon Auswahl";
    loadView();
    std::optional<std::string> ofClip;
    std::optional<std::string> ofNote;

    EXPECT_TRUE(
        pane().shortcutRecorderIsKeyCodeAndFlagsTakenReason(*controls().clipHotKeyRecorder, 0, 0, &ofClip));
    EXPECT_TRUE(
        pane().shortcutRecorderIsKeyCodeAndFlagsTakenReason(*controls().noteHotKeyRecorder, 0, 0, &ofNote));

    EXPECT_EQ(ofClip, "schon Notiz");
    EXPECT_EQ(ofNote, "schon Auswahl");
}

} // namespace qbsp
