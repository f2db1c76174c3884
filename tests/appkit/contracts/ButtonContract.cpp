#include "Contract.h"
#include "Samples.h"
#include "stages/ControlsStage.h"

namespace qbsp::contracts {

using platform::ButtonState;
using platform::Value;

namespace {

class ButtonContract : public Contract<ControlsStage> {
protected:
    [[nodiscard]] Value shown(const std::string& property) {
        return platform::entry(stage->shownButton(), property);
    }

    platform::Button& button = stage->button();
};

} // namespace

TEST_P(ButtonContract, ItShowsItsTitle) {
    for (const char* title : {"Quit Größe", ""}) {
        button.setTitle(title);
        EXPECT_EQ(shown("title"), Value(title));
    }
}

TEST_P(ButtonContract, ItIsHiddenAndDisabledAsItWasSet) {
    for (const bool yes : {true, false}) {
        button.setHidden(yes);
        button.setEnabled(!yes);
        EXPECT_EQ(shown("hidden"), Value(yes));
        EXPECT_EQ(shown("enabled"), Value(!yes));
    }
}

TEST_P(ButtonContract, ItShowsAndReturnsTheStateThatWasSet) {
    for (const ButtonState state : {ButtonState::on, ButtonState::mixed, ButtonState::off}) {
        button.setState(state);
        EXPECT_EQ(button.state(), state);
        EXPECT_EQ(shown("state"), Value(static_cast<int>(state)));
    }
}

TEST_P(ButtonContract, ItReturnsTheStateThatTheUserGaveIt) {
    button.setState(ButtonState::off);

    stage->clickButton();

    EXPECT_NE(button.state(), ButtonState::off);
}

INSTANTIATE_TEST_SUITE_P(On, ButtonContract, onBothSides<ControlsStage>(), nameOfSide);

} // namespace qbsp::contracts
