#include "Invariants.h"

#include <cstdlib>
#include <iostream>
#include <random>

namespace qbsp {

namespace {

/// Someone who does at random what a host, a user and the rest of the machine can do.
class Walker {
public:
    explicit Walker(std::uint32_t seed) : random_(seed) {
        stage.world.sandboxed = coin();
        stage.world.pro = coin();
        stage.world.loader =
            pick({simulated::Loader::present, simulated::Loader::empty, simulated::Loader::absent});
        stage.world.domains[full].put("Position", 3.5);
        stage.world.defaults.put("SorterTabIsInvisible", coin());
        stage.select();
    }

    void changeTheWorld() {
        auto& world = stage.world;
        switch (below(9)) {
        case 0:
            return flip(world.synchronizes);
        case 1:
            return flip(world.registered);
        case 2:
            return flip(world.registrarAdds);
        case 3:
            return flip(world.registrarRemoves);
        case 4:
            return flip(world.terminates);
        case 5:
            return stage.storeHideList(pick({full, solo}), someList());
        case 6:
            world.running = {pick({full, solo, embedded})};
            return;
        case 7:
            world.running.clear();
            return;
        default:
            world.jobs = {{{"Label", embedded}, {"OnDemand", coin()}}};
            return;
        }
    }

    void act() {
        QBSPPreferencePane& pane = stage.pane();
        const auto& controls = pane.controls;
        switch (below(12)) {
        case 0:
            return pane.willSelect();
        case 1:
            return pane.willUnselect();
        case 2:
            return pane.toggleSorterProcess(nullptr);
        case 3:
            return pane.resetFullscreenSettings(nullptr);
        case 4:
            return addAnApplication();
        case 5:
            return pane.shortcutRecorderKeyComboDidChange(*controls.clipHotKeyRecorder, someCombo());
        case 6:
            return pane.shortcutRecorderKeyComboDidChange(*controls.noteHotKeyRecorder, someCombo());
        case 7:
            return editSomeRow();
        case 8:
            return stage.wait(pick({"0.25", "0.5", "0.75"}));
        case 9:
            return coin() ? pane.showSorterApplication() : pane.closeSorterApplication();
        case 10:
            return controls.showAtLoginCheckbox->setState(someState());
        default:
            return controls.visibilityButton->setState(someState());
        }
    }

    Stage stage;

private:
    int below(int limit) { return std::uniform_int_distribution(0, limit - 1)(random_); }

    bool coin() { return below(2) == 0; }

    void flip(bool& answer) { answer = !answer; }

    template <class T>
    T pick(std::initializer_list<T> choices) {
        return *(choices.begin() + below(static_cast<int>(choices.size())));
    }

    std::string someName() { return pick({"apple", "Mango", "MANGO", "Zebra", "été", "", "long name"}); }

    platform::Value someList() {
        if (below(4) == 0)
            return pick({platform::Value(), platform::Value("no list")});
        return platform::Dictionary{{someName(), coin()}, {someName(), "YES"}, {someName(), 0.5}};
    }

    platform::KeyCombo someCombo() {
        return {static_cast<platform::CocoaFlags>(below(64)) << 15U, below(50) - 1};
    }

    platform::ButtonState someState() {
        return pick({platform::ButtonState::mixed, platform::ButtonState::off, platform::ButtonState::on});
    }

    void addAnApplication() {
        stage.pane().addHideApp(nullptr);
        stage.platform.openPanels.endSheet(below(3), "/Applications/" + someName() + ".app");
    }

    void editSomeRow() {
        const auto rows = static_cast<int>(stage.pane().tableArray().records().size());
        if (rows > 0)
            stage.editRow(below(rows), coin());
    }

    std::mt19937 random_;
};

void expectSorted(Stage& stage) {
    const auto& records = stage.pane().tableArray().records();
    for (std::size_t i = 1; i < records.size(); ++i)
        EXPECT_TRUE(
            std::is_lteq(compareStringUsingSelector(records[i - 1], records[i], stage.platform.strings)));
}

void walk(std::uint32_t seed) {
    constexpr int steps = 300;
    Walker walker(seed);
    const auto sorterURL = walker.stage.pane().sorterAppURL();
    for (int step = 0; step < steps; ++step) {
        walker.changeTheWorld();
        Invariants invariants(walker.stage);
        walker.act();
        invariants.check(Asked(walker.stage.operations()));
        expectSorted(walker.stage);
        EXPECT_EQ(walker.stage.shown("attentionLabel", "hidden"), true);
        EXPECT_EQ(walker.stage.pane().sorterAppURL(), sorterURL);
        ASSERT_FALSE(testing::Test::HasFailure()) << "seed " << seed << ", step " << step;
    }
}

} // namespace

TEST(RandomWalk, KeepsTheInvariantsAfterEveryStep) {
    const char* const chosen = std::getenv("SORTERPANE_SEED");
    const std::vector<std::uint32_t> seeds =
        chosen == nullptr ? std::vector<std::uint32_t>{1, 2, 3}
                          : std::vector{static_cast<std::uint32_t>(std::strtoul(chosen, nullptr, 10))};
    for (const std::uint32_t seed : seeds) {
        std::cout << "random walk with SORTERPANE_SEED=" << seed << '\n';
        walk(seed);
    }
}

} // namespace qbsp
