#include "Contract.h"
#include "stages/ControlsStage.h"

namespace qbsp::contracts {

using Rows = std::vector<std::int64_t>;

namespace {

constexpr std::int64_t rowCount = 50;

class TableViewContract : public Contract<ControlsStage> {
protected:
    void SetUp() override {
        stage->setRowCount(rowCount);
        table.reloadData();
    }

    platform::TableView& table = stage->table();
};

class TableColumnContract : public TableViewContract {};

class TableRowContract : public TableViewContract {};

} // namespace

TEST_P(TableViewContract, ItShowsTheDataSourcesRowsOnceItIsReloaded) {
    EXPECT_EQ(stage->shownRows(), rowCount);

    stage->setRowCount(3);
    table.reloadData();

    EXPECT_EQ(stage->shownRows(), 3) << "the table should show the rows of its data source";
}

TEST_P(TableViewContract, SelectingARowDeselectsTheOthers) {
    EXPECT_EQ(stage->selectedRows(), Rows());

    table.selectRow(0);
    table.selectRow(rowCount - 1);

    EXPECT_EQ(stage->selectedRows(), Rows{rowCount - 1});
}

TEST_P(TableViewContract, ARowIsScrolledToUntilItCanBeSeen) {
    for (const std::int64_t row : {rowCount - 1, std::int64_t{25}, std::int64_t{0}}) {
        table.scrollRowToVisible(static_cast<std::size_t>(row));
        EXPECT_TRUE(stage->rowIsVisible(row)) << row;
    }
}

TEST_P(TableColumnContract, AColumnIsFoundByItsIdentifierAndIsTheTablesOwn) {
    for (const char* identifier : {"1", "2"}) {
        auto& column = table.tableColumnWithIdentifier({identifier});
        EXPECT_EQ(column.identifier(), identifier);
        EXPECT_EQ(&table.tableColumnWithIdentifier({identifier}), &column);
    }
}

TEST_P(TableColumnContract, AColumnShowsTheTextOfItsHeader) {
    table.tableColumnWithIdentifier({"1"}).setHeaderStringValue("Größe");
    table.tableColumnWithIdentifier({"2"}).setHeaderStringValue("Hide");

    EXPECT_EQ(stage->shownHeader(0), "Größe");
    EXPECT_EQ(stage->shownHeader(1), "Hide");
}

TEST_P(TableColumnContract, NothingHasAnEffectOnAColumnThatIsNotThere) {
    table.tableColumnWithIdentifier({"1"}).setHeaderStringValue("Application");

    auto& missing = table.tableColumnWithIdentifier({"3"});
    missing.setHeaderStringValue("Missing");

    EXPECT_EQ(missing.identifier(), "");
    EXPECT_EQ(stage->shownHeader(0), "Application");
}

TEST_P(TableRowContract, NothingIsDoneForARowThatTheTableDoesNotHave) {
    table.selectRow(2);

    for (const std::size_t missing : {static_cast<std::size_t>(rowCount), SIZE_MAX}) {
        table.selectRow(missing);
        table.scrollRowToVisible(missing);
    }

    EXPECT_EQ(stage->selectedRows(), Rows{2});
    EXPECT_TRUE(stage->rowIsVisible(0));
}

INSTANTIATE_TEST_SUITE_P(On, TableViewContract, onBothSides<ControlsStage>(), nameOfSide);
INSTANTIATE_TEST_SUITE_P(On, TableColumnContract, onBothSides<ControlsStage>(), nameOfSide);
// The simulated table keeps whatever it was last asked for, so that it can be read.
INSTANTIATE_TEST_SUITE_P(On, TableRowContract, onAppKit<ControlsStage>(), nameOfSide);

} // namespace qbsp::contracts
