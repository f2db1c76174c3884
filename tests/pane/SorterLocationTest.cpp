#include "PaneTest.h"

namespace qbsp {

class SorterLocation : public PaneTest {
protected:
    /// Where the pane finds the Sorter as its view is set up; no text when it finds none.
    std::string sorterPath() {
        loadView();
        const auto url = pane().sorterAppURL();
        return url ? url->path() : std::string();
    }
};

TEST_F(SorterLocation, IsBesideTheRegistrarsCode) {
    world.registrarExecutable = "/Some/Where/SorterPlugin";

    EXPECT_EQ(sorterPath(), "/Some/Where/Quarrybook Sorter.app");
}

TEST_F(SorterLocation, NamesTheSoloSorterInTheSoloEdition) {
    world.pro = false;

    EXPECT_EQ(sorterPath(), "/PlugIn/Quarrybook Solo Sorter.app");
}

TEST_F(SorterLocation, IsTheEmbeddedSorterInTheSandboxedHost) {
    world.sandboxed = true;

    EXPECT_EQ(sorterPath(),
              "/Quarrybook.app/Contents/Library/LoginItems/Z3K8WQ4N7P.quarry2.QuarrybookSorter.app");
}

TEST_F(SorterLocation, IsTheSameForBothEditionsInTheSandboxedHost) {
    world.sandboxed = true;
    const std::string ofFull = sorterPath();
    world.pro = false;

    EXPECT_EQ(sorterPath(), ofFull);
}

TEST_F(SorterLocation, IsBesideTheExecutableReportedForNoClassWithoutARegistrar) {
    world.loader = simulated::Loader::absent;
    world.noClassExecutable = "/Host/Quarrybook";

    EXPECT_EQ(sorterPath(), "/Host/Quarrybook Sorter.app");
}

TEST_F(SorterLocation, IsNoneWithoutARegistrarAndAnExecutable) {
    world.loader = simulated::Loader::empty;
    world.noClassExecutable = std::nullopt;

    EXPECT_EQ(sorterPath(), "");
}

TEST_F(SorterLocation, IsNotComputedAgain) {
    select();
    world.registrarExecutable = "/Moved/SorterPlugin";
    world.pro = false;

    pane().willUnselect();
    pane().willSelect();

    EXPECT_TRUE(pane().isSorterProApp());
    EXPECT_EQ(pane().sorterAppURL()->path(), "/PlugIn/Quarrybook Sorter.app");
}

TEST_F(SorterLocation, AsksForTheEditionBeforeTheSandbox) {
    createPane();

    session.loadView();

    const auto asked = operations();
    EXPECT_EQ(asked.at(0), "NSApp isPro() -> true");
    EXPECT_EQ(asked.at(1), "NSApp isSandboxed() -> false");
    EXPECT_EQ(asked.at(2), R"(NSBundle executablePath("registrar") -> "/PlugIn/SorterPlugin")");
}

TEST_F(SorterLocation, LooksForNoExecutableInTheSandboxedHost) {
    world.sandboxed = true;
    createPane();

    session.loadView();

    EXPECT_EQ(operations().at(2).find("NSBundle executablePath"), std::string::npos);
}

} // namespace qbsp
