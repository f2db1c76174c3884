#include "hidelist/HideList.h"

#include "simulated/SimulatedStrings.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace qbsp {

namespace {

const simulated::SimulatedStrings comparison;

HideList listOf(const platform::Dictionary& hideFlags) {
    HideList list(comparison);
    list.load(hideFlags);
    return list;
}

std::vector<std::string> names(const HideList& list) {
    std::vector<std::string> all;
    for (const auto& record : list.records())
        all.emplace_back(record.appName);
    return all;
}

} // namespace

TEST(HideList, DoesNotExistBeforeItsFirstLoad) {
    const HideList list(comparison);

    EXPECT_FALSE(list.exists());
    EXPECT_TRUE(list.records().empty());
    EXPECT_EQ(list.hideFlags(), platform::Dictionary{});
}

TEST(HideList, ExistsEvenWhenAnEmptyListWasLoaded) {
    EXPECT_TRUE(listOf({}).exists());
}

TEST(HideList, IsSortedIgnoringCase) {
    const HideList list = listOf({{"Zebra", true}, {"apple", false}, {"Mango", true}});

    EXPECT_EQ(names(list), (std::vector<std::string>{"apple", "Mango", "Zebra"}));
}

TEST(HideList, IsSortedByCharactersAndNotByBytes) {
    const HideList list = listOf({{"été", true}, {"ÉTÉ", true}, {"zoo", true}, {"Être", true}});

    EXPECT_EQ(names(list).front(), "zoo");
    EXPECT_EQ(names(list).back(), "Être");
}

TEST(HideList, KeepsTheOrderOfNamesThatDifferOnlyInCase) {
    platform::Dictionary stored;
    for (unsigned capitals = 0; capitals < 64; ++capitals) {
        std::string name = "reader";
        for (std::size_t letter = 0; letter < name.size(); ++letter)
            if ((capitals >> letter & 1U) != 0)
                name[letter] = static_cast<char>(name[letter] - 'a' + 'A');
        stored.emplace(name, true);
    }

    const auto listed = names(listOf(stored));

    EXPECT_TRUE(std::ranges::equal(listed, stored, {}, {}, [](const auto& entry) { return entry.first; }));
}

TEST(HideList, KeepsTheStoredFlagsInTheirKinds) {
    const platform::Dictionary stored{{"a", true}, {"b", "YES"}, {"c", 2.5}, {"d", platform::Array{1}}};

    EXPECT_EQ(listOf(stored).hideFlags(), stored);
}

TEST(HideList, IsReplacedWholeByTheNextLoad) {
    HideList list = listOf({{"Mail", true}});

    list.load({{"Player", false}});

    EXPECT_EQ(names(list), std::vector<std::string>{"Player"});
}

TEST(HideList, FindsIgnoringCase) {
    const HideList list = listOf({{"apple", true}, {"Mango", true}, {"Ärger", true}});

    EXPECT_EQ(list.indexOf("MANGO"), 1);
    EXPECT_EQ(list.indexOf("äRGER"), 2);
}

TEST(HideList, FindsTheFirstOfSeveral) {
    const HideList list = listOf({{"MAIL", true}, {"mail", true}, {"apple", true}});

    EXPECT_EQ(list.indexOf("Mail"), 1);
}

TEST(HideList, NeitherTrimsNorNormalisesWhatItSearches) {
    const HideList list = listOf({{"Mail", true}, {"é", true}});

    EXPECT_EQ(list.indexOf("Mail "), -1);
    EXPECT_EQ(list.indexOf("e\u0301"), -1);
    EXPECT_EQ(list.indexOf("Mai"), -1);
}

TEST(HideList, ReturnsMinusOneForANameThatIsNotThere) {
    EXPECT_EQ(HideList::notFound, -1);
    EXPECT_EQ(HideList(comparison).indexOf("Mail"), -1);
    EXPECT_EQ(listOf({}).indexOf(""), -1);
}

TEST(HideList, SortsWhatIsAdded) {
    HideList list = listOf({{"apple", true}, {"Zebra", true}});

    EXPECT_EQ(list.add({"mango", false}), 1U);

    EXPECT_EQ(names(list), (std::vector<std::string>{"apple", "mango", "Zebra"}));
}

TEST(HideList, TakesNothingWhileItDoesNotExist) {
    HideList list(comparison);

    EXPECT_EQ(list.add({"mango", false}), 0U);

    EXPECT_FALSE(list.exists());
    EXPECT_TRUE(list.records().empty());
}

TEST(HideList, TakesARowAfterThoseWithAnEqualName) {
    HideList list = listOf({{"Mail", true}, {"apple", true}, {"Zebra", true}});

    EXPECT_EQ(list.add({"mail", false}), 2U);

    EXPECT_EQ(names(list), (std::vector<std::string>{"apple", "Mail", "mail", "Zebra"}));
}

TEST(HideList, KeepsTheNamesAfterThoseItWasGivenAreGone) {
    HideList list = listOf({{"A name that is longer than a short string", true}});

    list.add({std::string("The name of an application that was added"), false});

    EXPECT_EQ(names(list), (std::vector<std::string>{"A name that is longer than a short string",
                                                     "The name of an application that was added"}));
}

TEST(HideList, IsEmptiedButGoesOnExisting) {
    HideList list = listOf({{"Mail", true}});

    list.removeAll();

    EXPECT_TRUE(list.exists());
    EXPECT_TRUE(list.records().empty());
}

TEST(HideList, IsNotCreatedByEmptyingIt) {
    HideList list(comparison);

    list.removeAll();

    EXPECT_FALSE(list.exists());
}

TEST(HideList, StoresTheLaterOfTwoRowsWithOneName) {
    HideList list = listOf({{"Mail", true}});
    list.add({"Mail", false});

    EXPECT_EQ(list.hideFlags(), (platform::Dictionary{{"Mail", false}}));
}

TEST(HideList, ThrowsForARowOutsideIt) {
    EXPECT_THROW(std::ignore = &listOf({{"Mail", true}}).at(1), std::out_of_range);
    EXPECT_THROW(std::ignore = &HideList(comparison).at(0), std::out_of_range);
    EXPECT_THROW(listOf({{"Mail", true}}).setHideApp(1, false), std::out_of_range);
}

TEST(HideAppOrder, ComparesNamesIgnoringCase) {
    const auto order = [](const char* first, const char* second) {
        return compareStringUsingSelector({first, true}, {second, false}, comparison);
    };

    EXPECT_TRUE(std::is_lt(order("apple", "MANGO")));
    EXPECT_TRUE(std::is_gt(order("zebra", "MANGO")));
    EXPECT_TRUE(std::is_eq(order("mango", "MANGO")));
}

} // namespace qbsp
