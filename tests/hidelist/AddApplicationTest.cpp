#include "PaneTest.h"

namespace qbsp {

class AddApplication : public PaneTest {
protected:
    AddApplication() { storeHideList(full, platform::Dictionary{{"apple", true}, {"Zebra", false}}); }

    static constexpr const char* bundle = "/Applications/Chosen.app";

    void putInfo(const platform::Dictionary& info) {
        world.disk.putPropertyList("/Applications/Chosen.app/Contents/Info.plist", info);
    }

    /// Presses the add button.
    void add() {
        pane().addHideApp(nullptr);
        forget();
    }

    /// Presses the add button and chooses the bundle.
    void choose() {
        add();
        platform.openPanels.endSheet(platform::NSOKButton, bundle);
    }
};

TEST_F(AddApplication, AsksForOneApplicationInASheet) {
    select();

    pane().addHideApp(nullptr);

    EXPECT_EQ(transcript(), R"(
NSOpenPanel setCanChooseDirectories:(false)
NSOpenPanel setAllowsMultipleSelection:(false)
NSOpenPanel setAllowedFileTypes:(["app"])
NSOpenPanel setDirectoryURL:("/Applications")
NSOpenPanel beginSheetModalForWindow:completionHandler:()
)");
    EXPECT_TRUE(platform.openPanels.sheetIsOpen());
}

TEST_F(AddApplication, AddsItUnderItsExecutablesNameSelectedAndInView) {
    select();
    putInfo({{"CFBundleExecutable", "Mail"}});

    choose();

    EXPECT_EQ(transcript(), R"(
NSFileManager fileExistsAtPath:("/Applications/Chosen.app") -> true
NSDictionary dictionaryWithContentsOfFile:("/Applications/Chosen.app/Contents/Info.plist") -> {"CFBundleExecutable": "Mail"}
hideAppsTable reloadData()
hideAppsTable selectRowIndexes:byExtendingSelection:([1], false)
hideAppsTable scrollRowToVisible:(1)
)");
    EXPECT_TRUE(pane().hideAppsUpdated());
}

TEST_F(AddApplication, AddsItSortedAndWithItsFlagOff) {
    select();
    putInfo({{"CFBundleExecutable", "Mail"}});

    choose();

    EXPECT_EQ(pane().tableArray().at(1).appName, "Mail");
    EXPECT_EQ(pane().tableArray().at(1).hideApp, false);
    EXPECT_EQ(shown("hideAppsTable", "rows"), std::int64_t{3}) << "the table was reloaded too early";
}

TEST_F(AddApplication, TakesTheNameFromTheBundleAndNotFromTheFile) {
    select();
    putInfo({{"CFBundleExecutable", "Original"}});

    choose();

    EXPECT_EQ(pane().indexOfAppInList("Original"), 1);
    EXPECT_EQ(pane().indexOfAppInList("Chosen"), -1);
}

TEST_F(AddApplication, AddsABundleThatIsGoneUnderItsFileName) {
    select();

    choose();

    EXPECT_EQ(pane().indexOfAppInList("Chosen"), 1);
}

TEST_F(AddApplication, AddsNothingWithoutAName) {
    select();
    world.disk.makeFolder(bundle);

    choose();

    EXPECT_EQ(transcript(), R"(
NSFileManager fileExistsAtPath:("/Applications/Chosen.app") -> true
NSDictionary dictionaryWithContentsOfFile:("/Applications/Chosen.app/Contents/Info.plist") -> null
)");
    EXPECT_FALSE(pane().hideAppsUpdated());
}

TEST_F(AddApplication, SelectsTheRowWhoseNameDiffersOnlyInCase) {
    select();
    putInfo({{"CFBundleExecutable", "ZEBRA"}});

    choose();

    EXPECT_EQ(transcript(), R"(
NSFileManager fileExistsAtPath:("/Applications/Chosen.app") -> true
NSDictionary dictionaryWithContentsOfFile:("/Applications/Chosen.app/Contents/Info.plist") -> {"CFBundleExecutable": "ZEBRA"}
hideAppsTable selectRowIndexes:byExtendingSelection:([1], false)
hideAppsTable scrollRowToVisible:(1)
)");
    EXPECT_EQ(pane().tableArray().hideFlags(), (platform::Dictionary{{"apple", true}, {"Zebra", false}}));
    EXPECT_FALSE(pane().hideAppsUpdated());
}

TEST_F(AddApplication, SelectsTheFirstRowToo) {
    select();
    putInfo({{"CFBundleExecutable", "Apple"}});

    choose();

    EXPECT_EQ(shown("hideAppsTable", "selected"), platform::Array{std::int64_t{0}});
    EXPECT_EQ(pane().tableArray().records().size(), 2U) << "a row was added";
}

TEST_F(AddApplication, LeavesAnEarlierChangeMarkedWhenTheNameIsThere) {
    select();
    editRow(0, false);
    putInfo({{"CFBundleExecutable", "Zebra"}});

    choose();

    EXPECT_TRUE(pane().hideAppsUpdated());
}

TEST_F(AddApplication, DoesNothingWhenThePanelIsCancelled) {
    for (const std::int64_t result :
         {std::int64_t{0}, std::int64_t{2}, std::int64_t{-1}, std::int64_t{0x100000001}}) {
        select();
        add();

        platform.openPanels.endSheet(result, bundle);

        EXPECT_EQ(transcript(), nothing) << result;
        EXPECT_FALSE(pane().hideAppsUpdated());
    }
}

TEST_F(AddApplication, DoesNothingWhenNothingWasChosen) {
    select();
    add();

    platform.openPanels.endSheet(platform::NSOKButton, std::nullopt);

    EXPECT_EQ(transcript(), nothing);
}

TEST_F(AddApplication, GoesOnWithoutAListAndSelectsRowZero) {
    storeHideList(full, {});
    select();

    choose();

    EXPECT_EQ(transcript(), R"(
NSFileManager fileExistsAtPath:("/Applications/Chosen.app") -> false
hideAppsTable reloadData()
hideAppsTable selectRowIndexes:byExtendingSelection:([0], false)
hideAppsTable scrollRowToVisible:(0)
)");
    EXPECT_FALSE(pane().tableArray().exists());
    EXPECT_TRUE(pane().hideAppsUpdated());
}

TEST_F(AddApplication, WritesNothingBeforeThePaneIsLeft) {
    select();
    choose();
    EXPECT_EQ(hideList(full), (platform::Dictionary{{"apple", true}, {"Zebra", false}}));

    pane().willUnselect();

    EXPECT_EQ(hideList(full), (platform::Dictionary{{"apple", true}, {"Chosen", false}, {"Zebra", false}}));
}

TEST_F(AddApplication, ReachesAPaneThatWasReleasedMeanwhile) {
    select();
    add();

    session.dealloc();
    platform.openPanels.endSheet(platform::NSOKButton, bundle);

    EXPECT_EQ(operations().back(), "hideAppsTable scrollRowToVisible:(1)");
}

} // namespace qbsp
