#include "PaneTest.h"

namespace qbsp {

namespace {

/// A column that need not be the table's.
class Column final : public platform::TableColumn {
public:
    explicit Column(std::string identifier) : identifier_(std::move(identifier)) {}

    std::string identifier() const override { return identifier_; }

    void setHeaderStringValue(std::string_view) override {}

private:
    std::string identifier_;
};

} // namespace

using HideListLoading = PaneTest;

TEST_F(HideListLoading, IsBracketedByTheSuite) {
    storeHideList(full, platform::Dictionary{{"Mail", true}});
    loadView();

    pane().loadHideAppData();

    EXPECT_EQ(transcript(), R"(
CFPreferencesAddSuitePreferencesToApp("com.quarrybook.Sorter", "kCFPreferencesCurrentApplication")
CFPreferencesCopyAppValue("UserSpecifiedFullScreenApplications", "com.quarrybook.Sorter") -> {"Mail": true}
CFPreferencesRemoveSuitePreferencesFromApp("com.quarrybook.Sorter", "kCFPreferencesCurrentApplication")
hideAppsTable reloadData()
)");
}

TEST_F(HideListLoading, ReadsTheSoloDomainInTheSoloEdition) {
    world.pro = false;
    storeHideList(full, platform::Dictionary{{"Mail", true}});
    loadView();

    pane().loadHideAppData();

    EXPECT_EQ(transcript(), R"(
CFPreferencesAddSuitePreferencesToApp("com.quarrybook.SoloSorter", "kCFPreferencesCurrentApplication")
CFPreferencesCopyAppValue("UserSpecifiedFullScreenApplications", "com.quarrybook.SoloSorter") -> null
CFPreferencesRemoveSuitePreferencesFromApp("com.quarrybook.SoloSorter", "kCFPreferencesCurrentApplication")
)");
}

TEST_F(HideListLoading, LeavesNoListWhereNoneIsStored) {
    select();

    EXPECT_FALSE(pane().tableArray().exists());
    EXPECT_EQ(pane().numberOfRowsInTableView(*controls().hideAppsTable), 0);
}

TEST_F(HideListLoading, KeepsTheRowsWhenTheStoredListIsGone) {
    storeHideList(full, platform::Dictionary{{"Mail", true}});
    select();
    storeHideList(full, {});

    pane().loadHideAppData();

    EXPECT_EQ(pane().indexOfAppInList("Mail"), 0);
    EXPECT_EQ(operations().size(), 3U) << "the table was reloaded";
}

TEST_F(HideListLoading, TakesNoListFromAValueThatIsNoDictionary) {
    for (const platform::Value& value :
         {platform::Value("Mail"), platform::Value(platform::Array{"Mail"}), platform::Value(true)}) {
        storeHideList(full, value);

        select();

        EXPECT_FALSE(pane().tableArray().exists());
        EXPECT_EQ(hideList(full), value);
    }
}

TEST_F(HideListLoading, LooksForAMissingListInTheHostsDefaults) {
    world.defaults.put(hideListKey, platform::Dictionary{{"Mail", true}});

    select();

    EXPECT_EQ(pane().indexOfAppInList("Mail"), 0);
}

TEST_F(HideListLoading, LeavesTheChangeMarkAlone) {
    storeHideList(full, platform::Dictionary{{"Mail", true}});
    select();
    EXPECT_FALSE(pane().hideAppsUpdated());
    editRow(0, false);

    pane().loadHideAppData();

    EXPECT_TRUE(pane().hideAppsUpdated());
}

TEST_F(HideListLoading, TakesNamesOfAnyKind) {
    const platform::Dictionary odd{{"", true},           {std::string(10000, 'x'), true},
                                   {"line\nfeed", true}, {R"("quoted")", true},
                                   {"🗂", true},       {"עברית", true}};
    storeHideList(full, odd);

    select();

    EXPECT_EQ(pane().tableArray().hideFlags(), odd);
}

class HideListTable : public PaneTest {
protected:
    HideListTable() {
        storeHideList(full, platform::Dictionary{{"Zebra", true}, {"apple", false}, {"Mango", "YES"}});
        select();
    }

    platform::Value valueAt(const char* column, std::int64_t row) {
        return pane().tableViewObjectValueForTableColumnRow(*controls().hideAppsTable, Column(column), row);
    }

    void setValueAt(const char* column, std::int32_t row, const platform::Value& value) {
        pane().tableViewSetObjectValueForTableColumnRow(*controls().hideAppsTable, value, Column(column),
                                                        row);
    }

    [[nodiscard]] platform::Value flagOf(std::size_t row) const {
        return pane().tableArray().at(row).hideApp;
    }
};

TEST_F(HideListTable, HasARowForEachApplication) {
    EXPECT_EQ(pane().numberOfRowsInTableView(*controls().hideAppsTable), 3);
    EXPECT_EQ(shown("hideAppsTable", "rows"), std::int64_t{3});
}

TEST_F(HideListTable, ShowsNamesInColumnOneSorted) {
    EXPECT_EQ(valueAt("1", 0), "apple");
    EXPECT_EQ(valueAt("1", 1), "Mango");
    EXPECT_EQ(valueAt("1", 2), "Zebra");
}

TEST_F(HideListTable, ShowsFlagsAsZeroAndOneInColumnTwo) {
    EXPECT_EQ(valueAt("2", 0), std::int32_t{0});
    EXPECT_EQ(valueAt("2", 1), std::int32_t{1});
    EXPECT_EQ(valueAt("2", 2), std::int32_t{1});
}

TEST_F(HideListTable, ShowsFlagsInEveryColumnButOne) {
    for (const char* const column : {"0", "11", "", "name", "1 "})
        EXPECT_EQ(valueAt(column, 2), std::int32_t{1}) << column;
}

TEST_F(HideListTable, ShowsARecordWithoutAFlagAsZero) {
    storeHideList(full, platform::Dictionary{{"Mail", {}}});
    pane().loadHideAppData();

    EXPECT_EQ(valueAt("2", 0), std::int32_t{0});
}

TEST_F(HideListTable, MakesNoPlatformCall) {
    std::ignore = valueAt("1", 0);
    setValueAt("2", 0, 1);

    EXPECT_EQ(transcript(), nothing);
}

TEST_F(HideListTable, StoresYesForOneOnly) {
    for (const auto& [value, flag] : {std::pair{1, true}, {0, false}, {-1, false}, {2, false}}) {
        setValueAt("2", 0, value);

        EXPECT_EQ(flagOf(0), flag) << value;
    }
}

TEST_F(HideListTable, TakesTheIntegerOfAnyKindOfValue) {
    for (const auto& [value, flag] : {std::pair{platform::Value(true), true},
                                      {platform::Value(1.9), true},
                                      {platform::Value("1 row"), true},
                                      {platform::Value("YES"), false},
                                      {platform::Value(), false}}) {
        setValueAt("2", 0, value);

        EXPECT_EQ(flagOf(0), flag);
    }
}

TEST_F(HideListTable, IsMarkedChangedByAnyEditOfColumnTwo) {
    setValueAt("2", 0, 0);

    EXPECT_TRUE(pane().hideAppsUpdated());
}

TEST_F(HideListTable, IgnoresEditsOfEveryColumnButTwo) {
    for (const char* const column : {"1", "3", "22", "", "name"})
        setValueAt(column, 0, 1);

    EXPECT_EQ(flagOf(0), false);
    EXPECT_FALSE(pane().hideAppsUpdated());
}

TEST_F(HideListTable, ChangesTheEditedRowOnly) {
    setValueAt("2", 1, 0);

    EXPECT_EQ(pane().tableArray().hideFlags(),
              (platform::Dictionary{{"Zebra", true}, {"apple", false}, {"Mango", false}}));
}

TEST_F(HideListTable, RefusesRowsOutsideTheList) {
    EXPECT_THROW(std::ignore = valueAt("1", 3), std::out_of_range);
    EXPECT_THROW(std::ignore = valueAt("2", -1), std::out_of_range);
    EXPECT_THROW(setValueAt("2", 3, 1), std::out_of_range);
    EXPECT_FALSE(pane().hideAppsUpdated());
}

TEST_F(HideListTable, FindsNamesIgnoringCaseAndReturnsMinusOneOtherwise) {
    EXPECT_EQ(pane().indexOfAppInList("MANGO"), 1);
    EXPECT_EQ(pane().indexOfAppInList("Papaya"), -1);
}

} // namespace qbsp
