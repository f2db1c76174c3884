#include "xdg/DesktopEntry.h"

#include "TemporaryFolder.h"
#include "files/Draft.h"
#include "xdg/ExecValue.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <string>

namespace xdg {

namespace {

// Paths that a user may have, each with a character that has a meaning in an entry's syntax.
constexpr const char* oddPrograms[] = {
    "/opt/Quarrybook.app/Quarrybook Sorter",
    "/home/a/say \"hello\"/Sorter",
    "/home/a/back\\slash/Sorter\\",
    "/home/a/$HOME/`whoami`/Sorter",
    "/home/a/100%/%f/%%/Sorter",
    "/home/a/name=value/Sorter",
    "/home/a/name=value/50% \"\\$`/Sorter",
    "/home/a/it's; #1 & (2) <3> |~*?/Sorter",
    "/home/Jürgen/Записки/メモ/Sorter",
    "/home/a/two\nlines\tand a tab/Sorter",
};

std::string programIn(const std::string& text) {
    return parsedDesktopEntry(text).value_or(DesktopEntry{"", "none", false}).program;
}

bool enabledIn(const std::string& text) {
    return parsedDesktopEntry(text).value_or(DesktopEntry{"", "none", false}).enabled;
}

class OddProgram : public testing::TestWithParam<const char*> {};

} // namespace

TEST_P(OddProgram, IsReadBackAsItWasWritten) {
    const auto entry = parsedDesktopEntry(desktopEntryText({" Quarry\\book\n Sorter", GetParam()}));

    ASSERT_TRUE(entry);
    EXPECT_EQ(entry->program, GetParam());
    EXPECT_EQ(entry->name, " Quarry\\book\n Sorter");
    EXPECT_TRUE(entry->enabled);
}

TEST_P(OddProgram, GivesAValidEntry) {
    const TemporaryFolder folder;
    ASSERT_FALSE(files::writeWhole(folder.path() / "a.desktop", desktopEntryText({"Sorter", GetParam()})));

    const auto command = "desktop-file-validate " + (folder.path() / "a.desktop").string();
    EXPECT_EQ(std::system(command.c_str()), 0) << "the entry should be valid";
}

TEST_P(OddProgram, HasNoUnescapedPercentSignInItsCommandLine) {
    std::string line = commandLine(GetParam());
    for (auto pair = line.find("%%"); pair != std::string::npos; pair = line.find("%%"))
        line.erase(pair, 2);

    EXPECT_EQ(line.find('%'), std::string::npos);
}

INSTANTIATE_TEST_SUITE_P(Paths, OddProgram, testing::ValuesIn(oddPrograms));

TEST(DesktopEntryText, IsWhatADesktopReads) {
    EXPECT_EQ(desktopEntryText({"Quarrybook Sorter", "/opt/Quarrybook Sorter"}),
              "[Desktop Entry]\n"
              "Type=Application\n"
              "Name=Quarrybook Sorter\n"
              "Exec=\"/opt/Quarrybook Sorter\"\n"
              "TryExec=/opt/Quarrybook Sorter\n"
              "Terminal=false\n"
              "X-GNOME-Autostart-enabled=true\n");
}

// A desktop takes the first argument unquoted, and an equals sign there would set a variable.
TEST(DesktopEntryText, LetsTheShellStartAProgramThatMustNotComeFirst) {
    EXPECT_EQ(commandLine("/a=b/50%"), R"("/bin/sh" "-c" "exec \"\$0\"" "/a=b/50%%")");
}

TEST(DesktopEntryText, KeepsTheSpacesAroundAName) {
    for (const char* const name : {"  Sorter  ", " ", "   "})
        EXPECT_EQ(parsedDesktopEntry(desktopEntryText({name, "/bin/true"}))->name, name);
}

TEST(ParsedEntry, IsSwitchedOffByTheUserInEitherWay) {
    const std::string entry = "[Desktop Entry]\nExec=/opt/sorter\n";

    EXPECT_TRUE(enabledIn(entry));
    EXPECT_TRUE(enabledIn(entry + "Hidden=false\nX-GNOME-Autostart-enabled=true\n"));
    EXPECT_FALSE(enabledIn(entry + "Hidden=true\n"));
    EXPECT_FALSE(enabledIn(entry + "X-GNOME-Autostart-enabled=false\n"));
    EXPECT_FALSE(enabledIn(entry + "Hidden = true \r\n"));
}

TEST(ParsedEntry, IsReadFromItsOwnGroupOnly) {
    const std::string text = "# made by hand\nExec=/none\n[Other]\nExec=/other\nHidden=true\n"
                             "[Desktop Entry]\n#Exec=/comment\nExec = /opt/sorter --quiet\n"
                             "[Desktop Action New]\nExec=/action\nHidden=true\n";

    EXPECT_EQ(programIn(text), "/opt/sorter");
    EXPECT_TRUE(enabledIn(text));
}

TEST(ParsedEntry, HasAProgramWithOrWithoutQuotes) {
    EXPECT_EQ(programIn("[Desktop Entry]\nExec=/opt/sorter %U\n"), "/opt/sorter");
    EXPECT_EQ(programIn("[Desktop Entry]\nExec=\"/opt/the sorter\" \"an argument\"\n"), "/opt/the sorter");
    EXPECT_EQ(programIn("[Desktop Entry]\nExec=/opt/the\\\\ sorter\n"), "/opt/the sorter");
}

TEST(ParsedEntry, IsAbsentWithoutAProgram) {
    EXPECT_FALSE(parsedDesktopEntry(""));
    EXPECT_FALSE(parsedDesktopEntry("Exec=/opt/sorter"));
    EXPECT_FALSE(parsedDesktopEntry("[Desktop Entry]\n"));
    EXPECT_FALSE(parsedDesktopEntry("[Desktop Entry]\nExec=\n"));
    EXPECT_FALSE(parsedDesktopEntry("[Desktop Entry]\nExec=   \n"));
    EXPECT_FALSE(parsedDesktopEntry("[Desktop Entry]\nExec=\"/opt/sorter\n"));
    EXPECT_FALSE(parsedDesktopEntry("[Desktop Entry]\nExec=/opt/sorter\\\\\n"));
    EXPECT_FALSE(parsedDesktopEntry("[Desktop Entry\nExec=/opt/sorter"));
}

TEST(ParsedEntry, SurvivesAnyBytes) {
    EXPECT_FALSE(parsedDesktopEntry(std::string("\0\xff\n[\n=\n==\n\\", 12)));
    EXPECT_FALSE(parsedDesktopEntry("[Desktop Entry]\nExec=/opt/sorter\\"));
    EXPECT_EQ(programIn("[Desktop Entry]\nExec=/opt/\xff\\q"), "/opt/\xffq");
}

} // namespace xdg
