#include "scenario/CommandTable.h"

#include <gtest/gtest.h>

#include <array>

namespace qbsp::scenario {

namespace {

struct Row {
    std::string_view name;
    std::string_view arguments;
};

constexpr std::array table = {Row{"select", ""}, Row{"find", "NAME"}};

} // namespace

TEST(ScenarioCommandTable, FindsACommandByItsName) {
    EXPECT_EQ(findCommand(table, "find"), &table[1]);
    EXPECT_EQ(findCommand(table, "Find"), nullptr);
    EXPECT_EQ(findCommand(table, ""), nullptr);
}

TEST(ScenarioCommandTable, ListsEachCommandWithItsArgumentsInALine) {
    EXPECT_EQ(commandList(table), "  select\n  find NAME\n");
}

} // namespace qbsp::scenario
