#include "scenario/Lines.h"
#include "scenario/ScenarioError.h"
#include "simulated/Player.h"

#include <gtest/gtest.h>

#include <sstream>

namespace qbsp::simulated {

class ScenarioPlayer : public testing::Test {
protected:
    /// Plays the lines and gives what that printed.
    std::string play(std::initializer_list<const char*> lines) {
        output.str("");
        for (const char* const line : lines)
            playLine(line);
        return output.str();
    }

    /// Expects that the line is refused with nothing of it printed.
    void expectRefused(const std::string& line) {
        output.str("");
        EXPECT_THROW(playLine(line), scenario::ScenarioError) << line;
        EXPECT_EQ(output.str(), "") << line;
    }

    std::ostringstream output;
    Player player{output};

private:
    void playLine(const std::string& line) {
        scenario::Lines lines("a scenario", line);
        while (const auto command = lines.nextCommand())
            player.play(*command);
    }
};

TEST_F(ScenarioPlayer, SkipsBlankLinesAndComments) {
    EXPECT_EQ(play({"", "   ", "# comment", "   # comment"}), "");
}

TEST_F(ScenarioPlayer, PrintsTheCommandTrimmedItsOperationsAndItsAnswer) {
    EXPECT_EQ(play({"  base   false ", "initialize", "   create  "}), R"(> initialize
NSUserDefaults objectForKey:("SorterTabIsInvisible") -> null
NSUserDefaults setBool:forKey:(false, "SorterTabIsInvisible")
> create
NSPreferencePane initWithBundle:() -> false
NSLog("ERROR: Couldn't load SorterPrefPane plugin.")
= false
)");
}

TEST_F(ScenarioPlayer, RefusesUnknownCommands) {
    for (const char* const line : {"fly", "Create", "\"create\"", "create\t", "select-all"})
        expectRefused(line);
}

TEST_F(ScenarioPlayer, RefusesPaneCommandsWithoutAPane) {
    for (const char* const line : {"load-view",
                                   "select",
                                   "unselect",
                                   "dealloc",
                                   "toggle",
                                   "reset",
                                   "add",
                                   "panel 0",
                                   "offer clip 0 0",
                                   "offer-silently clip 0 0",
                                   "change clip 0 0",
                                   "set visibilityButton 1",
                                   "edit 2 0 1",
                                   "value 1 0",
                                   "rows",
                                   "find x",
                                   "terminated full",
                                   "raise deleteFullScreenSettingsInSorter",
                                   "show-sorter",
                                   "close-sorter",
                                   "in-login-items",
                                   "login-item-alert x",
                                   "state"})
        expectRefused(line);
    EXPECT_NE(play({"initialize", "wait 1", "shared-folder", "stores"}), "");
}

TEST_F(ScenarioPlayer, RefusesCommandsOutOfPlace) {
    play({"create", "load-view", "add"});
    for (const char* const line : {"create", "load-view", "add", "edit 2 0 1", "value 1 0",
                                   "set hideAppLabel 1", "set toggleLaunchButton 1", "panel 1"})
        expectRefused(line);
    play({"panel 0"});
    expectRefused("panel 0");
}

TEST_F(ScenarioPlayer, RefusesArgumentsThatAreMissingOrLeftOver) {
    play({"create", "load-view"});
    for (const char* const line :
         {"sandboxed", "sandboxed true false", "translation a", "default a", "domain full a", "running full",
          "plist /a", "columns", "select now", "offer clip 0", "offer clip 0 0 0", "find", "find a b", "wait",
          "rows 1", "raise"})
        expectRefused(line);
}

TEST_F(ScenarioPlayer, RefusesMalformedArguments) {
    play({"domain full UserSpecifiedFullScreenApplications {\"a\": true}", "create", "load-view", "select"});
    for (const char* const line : {"sandboxed yes",
                                   "sandboxed \"true\"",
                                   "loader gone",
                                   "process \"a",
                                   "process \"a\"b",
                                   "process \"\\x\"",
                                   "default a {",
                                   "default a [null]",
                                   "jobs {}",
                                   "jobs [1]",
                                   "plist /a []",
                                   "launch-services 2147483648",
                                   "launch-services x",
                                   "launch maybe",
                                   "alert 1.5",
                                   "columns a a",
                                   "disconnect table",
                                   "offer clip -1 -1",
                                   "offer clip 9223372036854775808 0",
                                   "offer clip 0 18446744073709551616",
                                   "offer clip 0x 0",
                                   "offer clip +1 0",
                                   "change both 0 0",
                                   "set visibilityButton 2",
                                   "edit 2 1 1",
                                   "edit 2 -1 1",
                                   "edit 2 0",
                                   "value 1 4294967296",
                                   "wait -1",
                                   "wait 1e3",
                                   "wait .5",
                                   "raise everything",
                                   "running full maybe"})
        expectRefused(line);
}

TEST_F(ScenarioPlayer, RefusesBytesThatAreNotUtf8) {
    expectRefused("process \xFF");
}

TEST_F(ScenarioPlayer, TakesNumbersInBothForms) {
    const std::string offered = play({"create", "load-view", "default Sorter.NoteHotKeyCode -7",
                                      "offer clip -0x7 0x0", "offer clip -7 0", "offer clip -7 -0"});

    std::size_t taken = 0;
    for (auto at = offered.find("= [true"); at != std::string::npos; at = offered.find("= [true", at + 1))
        ++taken;
    EXPECT_EQ(taken, 3U);
}

TEST_F(ScenarioPlayer, TakesWordsAsSpecialOnlyUnquoted) {
    play({"create", "load-view", R"(running "full" true)"});
    EXPECT_NE(play({"select"}).find(R"(QBApplicationIsRunning("com.quarrybook.Sorter") -> false)"),
              std::string::npos);

    play({"running full true", R"(container "null")"});
    EXPECT_NE(play({"select"}).find(R"(QBApplicationIsRunning("com.quarrybook.Sorter") -> true)"),
              std::string::npos);
    EXPECT_NE(play({"shared-folder"}).find(R"(= "null/Sorter")"), std::string::npos);
}

TEST_F(ScenarioPlayer, SendsWhatWaitsToAPaneThatWasGivenUp) {
    play({"create", "load-view", "toggle", "dealloc"});

    EXPECT_NE(play({"wait 0.75"}).find("toggleLaunchButton setEnabled:(true)"), std::string::npos);
}

TEST_F(ScenarioPlayer, GivesAFreshPaneFreshControls) {
    play({"create", "load-view", "set visibilityButton 1", "dealloc", "disconnect hideAppsTable", "create"});

    const std::string state = play({"load-view", "state"});

    EXPECT_NE(
        state.find(R"(visibilityButton: {"enabled": true, "hidden": false, "state": 0, "title": "Full"})"),
        std::string::npos);
    EXPECT_EQ(state.find("hideAppsTable"), std::string::npos);
}

TEST_F(ScenarioPlayer, PrintsOnlyThePanesOwnFieldsBeforeTheView) {
    EXPECT_EQ(play({"create", "state"}).find("hideAppLabel"), std::string::npos);
}

TEST_F(ScenarioPlayer, PrintsTheStoresInByteOrder) {
    EXPECT_EQ(play({"domain solo b 1", "domain full a 2", "domain empty c null", "default z true",
                    "plist /p {}", "file /f", "stores"}),
              R"(> stores
defaults: {"z": true}
domain com.quarrybook.SoloSorter: {"b": 1}
domain com.quarrybook.Sorter: {"a": 2}
file /p: {}
)");
}

} // namespace qbsp::simulated
