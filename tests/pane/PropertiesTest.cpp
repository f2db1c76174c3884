#include "PaneTest.h"

#include <atomic>
#include <thread>

namespace qbsp {

using Properties = PaneTest;

TEST_F(Properties, AreWhatTheyWereLastSetTo) {
    createPane();
    const auto url = platform::URL::fileURLWithPath("/Elsewhere/Sorter.app");
    simulated::SimulatedRegistrar other(world, platform.transcript);

    pane().setSorterAppURL(url);
    pane().setLoginItemRegistrar(&other);

    EXPECT_EQ(pane().sorterAppURL(), url);
    EXPECT_EQ(pane().loginItemRegistrar(), &other);
}

TEST_F(Properties, AreNullAfterNull) {
    loadView();

    pane().setSorterAppURL(std::nullopt);
    pane().setLoginItemRegistrar(nullptr);

    EXPECT_EQ(pane().sorterAppURL(), std::nullopt);
    EXPECT_EQ(pane().loginItemRegistrar(), nullptr);
}

TEST_F(Properties, CanRequestAResetAndTakeTheRequestBack) {
    createPane();

    pane().setDeleteFullScreenSettingsInSorter(true);
    EXPECT_TRUE(pane().deleteFullScreenSettingsInSorter());

    pane().setDeleteFullScreenSettingsInSorter(false);
    EXPECT_FALSE(pane().deleteFullScreenSettingsInSorter());
}

TEST_F(Properties, KeepTheSortersLocationIntactWhileAnotherThreadSetsIt) {
    const auto here = platform::URL::fileURLWithPath("/A folder whose name is long/Quarrybook Sorter.app");
    const auto there = platform::URL::fileURLWithPath("/Another/Sorter.app");
    createPane();
    pane().setSorterAppURL(here);
    std::atomic<bool> reading = false;
    std::atomic<bool> finished = false;

    std::thread setter([&] {
        reading.wait(false);
        for (int i = 0; i < 60000; ++i)
            pane().setSorterAppURL(i % 2 == 0 ? there : here);
        finished = true;
    });
    reading = true;
    reading.notify_one();
    int torn = 0;
    while (!finished) {
        const auto read = pane().sorterAppURL();
        torn += read != here && read != there;
    }
    setter.join();

    EXPECT_EQ(torn, 0);
}

} // namespace qbsp
