#include "xdg/Autostart.h"

#include "FileContents.h"
#include "TemporaryFolder.h"
#include "files/Draft.h"
#include "xdg/UserFolders.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <iterator>
#include <string>
#include <sys/stat.h>

namespace xdg {

namespace {

namespace fs = std::filesystem;

const DesktopEntry sorter{"Quarrybook Sorter", "/opt/Quarrybook Sorter"};
const std::string identifier = "com.quarrybook.Sorter";

std::ptrdiff_t filesIn(const fs::path& folder) {
    return std::distance(fs::directory_iterator(folder), fs::directory_iterator());
}

class AutostartFolder : public testing::Test {
protected:
    const TemporaryFolder temporary;
    const fs::path folder = temporary.path() / "config" / "autostart";
    const fs::path file = folder / "com.quarrybook.Sorter.desktop";
    const Autostart autostart{folder};
};

} // namespace

TEST_F(AutostartFolder, IsMadeWhenItIsMissing) {
    EXPECT_FALSE(autostart.add(identifier, sorter));

    EXPECT_EQ(bytesOf(file), desktopEntryText(sorter));
    EXPECT_EQ(filesIn(folder), 1) << "there should be one entry and no temporary file";
}

TEST_F(AutostartFolder, ReturnsTheProgramThatItStarts) {
    EXPECT_EQ(autostart.program(identifier), std::nullopt);

    ASSERT_FALSE(autostart.add(identifier, sorter));

    EXPECT_EQ(autostart.program(identifier), sorter.program);
    EXPECT_EQ(autostart.program("com.quarrybook.SoloSorter"), std::nullopt);
}

TEST_F(AutostartFolder, RemovesAnEntryAndSucceedsWhenThereIsNone) {
    ASSERT_FALSE(autostart.add(identifier, sorter));

    EXPECT_FALSE(autostart.remove(identifier));
    EXPECT_FALSE(autostart.remove(identifier));

    EXPECT_EQ(autostart.program(identifier), std::nullopt);
    EXPECT_EQ(filesIn(folder), 0) << "the entry should have been removed";
}

TEST_F(AutostartFolder, HoldsAnEntryThatTheUserSwitchedOffUntilItIsAddedAgain) {
    ASSERT_FALSE(files::writeWhole(file, desktopEntryText(sorter) + "Hidden=true\n"));
    EXPECT_EQ(autostart.program(identifier), std::nullopt);

    ASSERT_FALSE(autostart.add(identifier, sorter));

    EXPECT_EQ(autostart.program(identifier), sorter.program);
}

TEST_F(AutostartFolder, RefusesWhenItCannotBeMade) {
    ASSERT_FALSE(files::writeWhole(temporary.path() / "config", "a file where the folder should be"));

    EXPECT_TRUE(autostart.add(identifier, sorter));
    EXPECT_EQ(autostart.program(identifier), std::nullopt);
    EXPECT_EQ(bytesOf(temporary.path() / "config"), "a file where the folder should be");
}

TEST_F(AutostartFolder, RefusesWhenAFolderIsInTheEntrysPlaceAndLeavesNothingBehind) {
    fs::create_directories(file / "full");

    EXPECT_TRUE(autostart.add(identifier, sorter));
    EXPECT_EQ(autostart.program(identifier), std::nullopt);
    EXPECT_TRUE(autostart.remove(identifier));
    EXPECT_EQ(filesIn(folder), 1) << "there should be one entry and no temporary file";
}

TEST_F(AutostartFolder, IsReplacedAsAWholeFile) {
    ASSERT_FALSE(files::writeWhole(file, std::string(100'000, 'x')));
    fs::create_hard_link(file, folder / "earlier");

    ASSERT_FALSE(autostart.add(identifier, sorter));

    EXPECT_EQ(bytesOf(folder / "earlier"), std::string(100'000, 'x')) << "the old file was written into";
    EXPECT_EQ(bytesOf(file), desktopEntryText(sorter));
}

TEST_F(AutostartFolder, AndItsEntriesAreTheOwnersAloneWhateverTheUmask) {
    const mode_t before = umask(0);
    EXPECT_FALSE(autostart.add(identifier, sorter));
    umask(before);

    EXPECT_EQ(fs::status(folder.parent_path()).permissions(), fs::perms(0700));
    EXPECT_EQ(fs::status(folder).permissions(), fs::perms(0700));
    EXPECT_EQ(fs::status(file).permissions(), fs::perms(0600));
}

TEST_F(AutostartFolder, LeavesALinkAndWritesTheFileThatItNames) {
    fs::create_directories(folder);
    fs::create_symlink(temporary.path() / "entry", file);

    EXPECT_FALSE(autostart.add(identifier, sorter));

    EXPECT_TRUE(fs::is_symlink(file));
    EXPECT_EQ(bytesOf(temporary.path() / "entry"), desktopEntryText(sorter));
}

TEST(UserFolders, AreWhatTheEnvironmentSays) {
    setenv("XDG_CONFIG_HOME", "/elsewhere/config", 1);
    setenv("XDG_DATA_HOME", "/elsewhere/data", 1);
    setenv("XDG_STATE_HOME", "/elsewhere/state", 1);

    EXPECT_EQ(configHome(), "/elsewhere/config");
    EXPECT_EQ(dataHome(), "/elsewhere/data");
    EXPECT_EQ(stateHome(), "/elsewhere/state");
}

TEST(UserFolders, LieInTheHomeFolderWhenTheEnvironmentSaysNothingValid) {
    setenv("HOME", "/home/a", 1);
    unsetenv("XDG_CONFIG_HOME");
    setenv("XDG_DATA_HOME", "", 1);
    setenv("XDG_STATE_HOME", "not/absolute", 1);

    EXPECT_EQ(configHome(), "/home/a/.config");
    EXPECT_EQ(dataHome(), "/home/a/.local/share");
    EXPECT_EQ(stateHome(), "/home/a/.local/state");
}

TEST(UserFolders, FallBackOnTheAccountsHomeFolder) {
    unsetenv("XDG_CONFIG_HOME");
    unsetenv("HOME");

    EXPECT_TRUE(configHome().is_absolute());
    EXPECT_EQ(configHome().filename(), ".config");
}

TEST_F(AutostartFolder, HoldsNoProgramWhereAnEntryIsDamagedOrHostileAndTakesANewOne) {
    using namespace std::string_literals;
    const std::string group = "[Desktop Entry]\n";
    const std::string hostile[] = {
        "",
        "\n\n\n",
        std::string(4096, '\0'),
        std::string(1 << 20, '['),
        std::string((1 << 20) + 1, ' '),
        "\xFF\xFE[\0D\0e\0"s,
        "Exec=/opt/sorter\n",
        "[Desktop Entry\nExec=/opt/sorter\n",
        "[Other]\nExec=/opt/sorter\n",
        "[[Desktop Entry]]\nExec=/opt/sorter\n",
        group,
        group + "Exec\n",
        group + "Exec=\n",
        group + "=Exec\n",
        group + "exec=/opt/sorter\n",
        group + "#Exec=/opt/sorter\n",
        group + "Exec[en]=/opt/sorter\n",
        group + "Exec=\"/opt/sorter\n",
        group + "Exec=\"\n",
        group + "Exec=\\\n",
        group + "Exec=/opt/sorter\\",
        group + "Exec=/opt/sorter\nHidden=true\n",
        group + "Exec=/opt/sorter\nX-GNOME-Autostart-enabled=false\n",
        group + "[Other]\nExec=/opt/sorter\n",
        group + std::string(500'000, '=') + "\n",
    };
    fs::create_directories(folder);
    for (const std::string& text : hostile) {
        std::ofstream(file, std::ios::binary) << text;
        EXPECT_EQ(autostart.program(identifier), std::nullopt) << text.substr(0, 80);
        EXPECT_FALSE(autostart.add(identifier, sorter));
        EXPECT_EQ(autostart.program(identifier), sorter.program) << text.substr(0, 80);
    }
}

TEST_F(AutostartFolder, HoldsNoProgramWhereAnEntryIsNoFile) {
    fs::create_directories(folder);
    const auto expectNothing = [&](const char* what) {
        EXPECT_EQ(autostart.program(identifier), std::nullopt) << what;
        fs::remove(file);
    };
    fs::create_directory(file);
    expectNothing("a folder");
    ASSERT_EQ(mkfifo(file.c_str(), 0600), 0);
    expectNothing("a pipe");
    fs::create_symlink(file, file);
    expectNothing("a link to itself");
    fs::create_symlink("/dev/zero", file);
    expectNothing("a device without an end");
}

} // namespace xdg
