#include "MortalPane.h"

namespace qbsp {

namespace {

/// Something that the user does after which something is stored.
struct Deed {
    const char* name;
    void (*prepare)(Stage& stage);
    void (*act)(Stage& stage);
};

void prepareNothing(Stage&) {}

void editTheFirstRow(Stage& stage) {
    stage.editRow(0, true);
}

constexpr Deed deeds[] = {
    {"recording a hot key", prepareNothing,
     [](Stage& s) {
         s.pane().shortcutRecorderKeyComboDidChange(*s.controls().clipHotKeyRecorder, {0x100000, 9});
     }},
    {"leaving the pane after an edit", editTheFirstRow,
     [](Stage& s) {
         s.pane().willUnselect();
     }},
    {"resetting the list", editTheFirstRow,
     [](Stage& s) {
         s.pane().resetFullscreenSettings(nullptr);
     }},
    {"starting for the first time",
     [](Stage& s) {
         s.platform.userDefaults.setObjectForKey({}, platform::DefaultsKey{"SorterTabIsInvisible"});
         std::ignore = s.platform.userDefaults.synchronize();
     },
     [](Stage& s) {
         s.session.initialize();
     }},
};

/// Every Sorter runs.
simulated::World worldOf(bool sandboxed, bool pro) {
    simulated::World world = Stage().world;
    world.sandboxed = sandboxed;
    world.pro = pro;
    world.running = {full, solo};
    world.disk.makeFolder("/Group/Sorter");
    return world;
}

/// Each store holds what the pane changes and what it does not know.
void fill(MortalPane& pane) {
    pane.put(hostsDefaults, "Sorter.ClipHotKeyCode", 8);
    pane.put(hostsDefaults, "Sorter.ClipHotKeyModifiers", 0x100);
    pane.put(hostsDefaults, "other", "value");
    for (const char* const sorter : {full, solo}) {
        pane.put(sorter, hideListKey, platform::Dictionary{{"apple", false}, {"Zebra", true}});
        pane.put(sorter, "Position", 3.5);
    }
    pane.act([](Stage& s) { s.pane().willSelect(); });
}

void expectNothingElseLost(const MortalPane& pane) {
    EXPECT_EQ(pane.ledger().kept(hostsDefaults, "other"), "\"value\"");
    for (const char* const sorter : {full, solo})
        EXPECT_EQ(pane.ledger().kept(sorter, "Position"), "3.5");
}

/// The process ends before the call of that number. False when there is no such call.
bool crashDuring(const Deed& deed, std::size_t number, bool sandboxed, bool pro) {
    MortalPane pane(worldOf(sandboxed, pro));
    fill(pane);
    pane.act(deed.prepare);
    const bool crashed = pane.actAndCrash(deed.act, number);
    expectNothingElseLost(pane);
    return crashed;
}

void crashDuring(const Deed& deed, bool sandboxed, bool pro) {
    std::size_t number = 0;
    while (crashDuring(deed, number, sandboxed, pro) && !testing::Test::HasFailure())
        ++number;
    EXPECT_GT(number, 1U) << "the deed asks the platform nothing";
    ASSERT_FALSE(testing::Test::HasFailure())
        << deed.name << ", call " << number << (sandboxed ? ", sandboxed" : ", ordinary")
        << (pro ? ", full" : ", solo");
}

} // namespace

TEST(Crash, LeavesWhatWasSynchronizedAndLosesNothingElseBeforeWhicheverCall) {
    for (const Deed& deed : deeds)
        for (const bool sandboxed : {false, true})
            for (const bool pro : {false, true})
                ASSERT_NO_FATAL_FAILURE(crashDuring(deed, sandboxed, pro));
}

TEST(Crash, AfterThePaneWasLeftLosesNoEdit) {
    for (const bool pro : {false, true}) {
        MortalPane pane(worldOf(false, pro));
        fill(pane);
        pane.act(editTheFirstRow);

        pane.act([](Stage& s) { s.pane().willUnselect(); });
        pane.actAndCrash([](Stage&) {}, 0);

        EXPECT_EQ(pane.ledger().kept(pro ? full : solo, hideListKey), R"({"Zebra": true, "apple": true})");
    }
}

TEST(Crash, BeforeAHotKeyWasFlushedKeepsTheOldOne) {
    MortalPane pane(worldOf(false, true));
    fill(pane);

    const bool crashed = pane.actAndCrash(
        [](Stage& s) {
            s.pane().shortcutRecorderKeyComboDidChange(*s.controls().clipHotKeyRecorder, {0x100000, 9});
        },
        2);

    EXPECT_TRUE(crashed);
    EXPECT_EQ(pane.ledger().kept(hostsDefaults, "Sorter.ClipHotKeyCode"), "8");
    EXPECT_EQ(pane.stage().shown("clipHotKeyRecorder", "code"), std::int64_t{8});
}

} // namespace qbsp
