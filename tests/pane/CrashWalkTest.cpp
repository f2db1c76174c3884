#include "MortalPane.h"
#include "Seed.h"

#include <iostream>
#include <random>

namespace qbsp {

namespace {

/// A user, other processes and crashes, at random.
class Walker {
public:
    explicit Walker(std::uint32_t seed) : random_(seed), pane_(someWorld(random_)) {}

    void step() {
        switch (below(10)) {
        case 0:
            return storeAsAnotherProcess();
        case 1:
            return pane_.act([](Stage& stage) { stage.world.synchronizes = !stage.world.synchronizes; });
        case 2:
        case 3:
            pane_.actAndCrash(someDeed(), static_cast<std::size_t>(below(25)));
            return expectTheValuesOfOthers();
        default:
            return act();
        }
    }

private:
    using Deed = std::function<void(Stage&)>;

    static simulated::World someWorld(std::mt19937& random) {
        simulated::World world = Stage().world;
        world.sandboxed = random() % 2 == 0;
        world.pro = random() % 2 == 0;
        world.running = {full, solo};
        world.disk.makeFolder("/Group/Sorter");
        return world;
    }

    int below(int limit) { return std::uniform_int_distribution(0, limit - 1)(random_); }

    bool coin() { return below(2) == 0; }

    /// A store that another process writes to.
    const char* someStore() {
        const char* const stores[] = {hostsDefaults, full, solo};
        return stores[below(3)];
    }

    void storeAsAnotherProcess() {
        const std::string store = someStore();
        const std::string key = "of others " + std::to_string(below(4));
        const int value = below(1000);
        pane_.put(store, key, value);
        ofOthers_[store][key] = std::to_string(value);
    }

    void expectTheValuesOfOthers() const {
        for (const auto& [store, values] : ofOthers_)
            for (const auto& [key, value] : values)
                EXPECT_EQ(pane_.ledger().kept(store, key), value) << store << " " << key;
    }

    /// In a process that lives on, a list that was changed is kept once the pane was left.
    void act() {
        const QBSPPreferencePane& pane = pane_.stage().pane();
        const bool wasUpdated = pane.hideAppsUpdated();
        pane_.act(someDeed());
        if (wasUpdated && !pane.hideAppsUpdated()) {
            EXPECT_EQ(pane_.ledger().kept(pane_.stage().world.pro ? full : solo, hideListKey),
                      simulated::json(pane.tableArray().hideFlags()));
        }
    }

    Deed someDeed() {
        switch (below(7)) {
        case 0:
            return [](Stage& s) {
                s.pane().willUnselect();
            };
        case 1:
            return [](Stage& s) {
                s.pane().willSelect();
            };
        case 2:
            return [](Stage& s) {
                s.pane().resetFullscreenSettings(nullptr);
            };
        case 3:
            return recording(coin(), {0x100000U << static_cast<unsigned>(below(2)), below(120)});
        case 4:
            return [](Stage& s) {
                s.session.initialize();
            };
        case 5:
            return adding("/Applications/Mail" + std::to_string(below(5)) + ".app");
        default:
            return editing(below(6), coin());
        }
    }

    static Deed recording(bool clip, platform::KeyCombo combo) {
        return [=](Stage& s) {
            const PaneControls& controls = s.controls();
            s.pane().shortcutRecorderKeyComboDidChange(
                clip ? *controls.clipHotKeyRecorder : *controls.noteHotKeyRecorder, combo);
        };
    }

    static Deed adding(const std::string& application) {
        return [=](Stage& s) {
            s.pane().addHideApp(nullptr);
            s.platform.openPanels.endSheet(platform::NSOKButton, application);
        };
    }

    static Deed editing(int row, bool hide) {
        return [=](Stage& s) {
            if (const auto rows = static_cast<int>(s.pane().tableArray().records().size()); rows > 0)
                s.editRow(row % rows, hide);
        };
    }

    std::mt19937 random_;
    MortalPane pane_;
    Stores ofOthers_;
};

} // namespace

TEST(CrashWalk, FindsWhatWasSynchronizedAndAllOfOthersAfterEveryCrash) {
    const std::uint32_t seed = seedFromEnvironment(1);
    const std::int64_t operations = numberFromEnvironment("SORTERPANE_OPERATIONS", 2'000);
    std::cout << "a walk of " << operations << " operations with SORTERPANE_SEED=" << seed << '\n';
    Walker walker(seed);
    for (long operation = 0; operation < operations; ++operation) {
        walker.step();
        ASSERT_FALSE(HasFailure()) << "seed " << seed << ", operation " << operation;
    }
}

} // namespace qbsp
