#include "scenario/Lines.h"

#include "Refused.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <vector>

namespace qbsp::scenario {

namespace {

/// Each command with the place where it stands.
std::vector<std::string> commandsIn(const std::string& text) {
    std::vector<std::string> commands;
    Lines lines("file", text);
    while (const auto command = lines.nextCommand())
        commands.push_back(lines.place() + " " + std::string(*command));
    return commands;
}

using Commands = std::vector<std::string>;

} // namespace

TEST(ScenarioLines, HoldACommandEach) {
    EXPECT_EQ(commandsIn("create\nselect\n"), (Commands{"file:1 create", "file:2 select"}));
}

TEST(ScenarioLines, NeedNoLineFeedAtTheEnd) {
    EXPECT_EQ(commandsIn("create\nselect"), (Commands{"file:1 create", "file:2 select"}));
    EXPECT_EQ(commandsIn(""), Commands{});
}

TEST(ScenarioLines, AreCountedWithBlankLinesAndComments) {
    EXPECT_EQ(commandsIn("\n# comment\n   \n  # comment\ncreate\n"), Commands{"file:5 create"});
}

TEST(ScenarioLines, LoseTheirOuterSpacesAndNothingElse) {
    EXPECT_EQ(commandsIn("  find  a b  \n"), Commands{"file:1 find  a b"});
    EXPECT_EQ(commandsIn("\tcreate\n"), Commands{"file:1 \tcreate"});
    EXPECT_EQ(commandsIn("create\r\n"), Commands{"file:1 create\r"});
}

TEST(ScenarioLines, AreRefusedWhereTheyAreNotUtf8) {
    for (const char* const bytes : {"\xFF", "\xC3", "\xED\xA0\x80", "# \xFF"}) {
        Lines lines("file", std::string("create\n") + bytes + "\nselect\n");
        ASSERT_EQ(lines.nextCommand(), "create");
        EXPECT_EQ(refused([&] { return lines.nextCommand(); }), "not UTF-8");
        EXPECT_EQ(lines.place(), "file:2");
    }
}

TEST(ScenarioFile, IsReadWhole) {
    const auto path = std::filesystem::temp_directory_path() / "scenario-file-is-read-whole";
    std::ofstream(path, std::ios::binary) << "create\r\nselect";
    EXPECT_EQ(contentsOf(path.string()), "create\r\nselect");
    std::filesystem::remove(path);
}

TEST(ScenarioFile, HasNoContentsWhereThereIsNone) {
    EXPECT_EQ(contentsOf("/nowhere/at/all"), std::nullopt);
    EXPECT_EQ(contentsOf("/"), std::nullopt);
}

} // namespace qbsp::scenario
