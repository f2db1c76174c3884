#include "platform/NullObjects.h"

#include "simulated/SimulatedControls.h"

#include <gtest/gtest.h>

namespace qbsp::platform {

TEST(Outlet, IsNotConnectedAtFirst) {
    const Outlet<Button> outlet;

    EXPECT_FALSE(outlet.isConnected());
    EXPECT_EQ(outlet.get(), nullptr);
}

TEST(Outlet, LeadsToWhatItIsConnectedTo) {
    simulated::Transcript transcript;
    simulated::SimulatedButton button("button", transcript);

    const Outlet<Button> outlet(&button);

    EXPECT_TRUE(outlet.isConnected());
    EXPECT_EQ(outlet.get(), &button);
    EXPECT_EQ(&*outlet, &button);
}

TEST(NullControls, IgnoreEveryMessage) {
    const Outlet<Button> button;
    button->setHidden(true);
    button->setTitle("title");
    button->setEnabled(false);
    button->setState(ButtonState::on);
    EXPECT_EQ(button->state(), ButtonState::off);

    const Outlet<TextField> label;
    label->setHidden(true);
    label->setStringValue("text");

    const Outlet<RecorderControl> recorder;
    recorder->setHidden(true);
    recorder->setKeyCombo({});
}

TEST(NullTable, HasOnlyAColumnThatIgnoresEveryMessage) {
    const Outlet<TableView> table;
    table->reloadData();
    table->selectRow(3);
    table->scrollRowToVisible(3);

    TableColumn& column = table->tableColumnWithIdentifier(ColumnIdentifier{"1"});
    column.setHeaderStringValue("header");

    EXPECT_EQ(column.identifier(), "");
    EXPECT_EQ(&column, &nullObject<TableColumn>());
}

} // namespace qbsp::platform
