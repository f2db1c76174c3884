#include "Contract.h"
#include "Samples.h"
#include "stages/ControlsStage.h"

namespace qbsp::contracts {

using platform::Dictionary;

namespace {

class TextFieldContract : public Contract<ControlsStage> {};

} // namespace

TEST_P(TextFieldContract, ItShowsItsText) {
    for (const char* text : {"Visibility:", "Größe 'unknown'", ""}) {
        stage->textField().setStringValue(text);
        EXPECT_EQ(stage->shownTextField(), (Dictionary{{"hidden", false}, {"text", text}}));
    }
}

TEST_P(TextFieldContract, ItIsHiddenUntilItIsShownAgain) {
    stage->textField().setStringValue("a text");
    for (const bool hidden : {true, true, false}) {
        stage->textField().setHidden(hidden);
        EXPECT_EQ(stage->shownTextField(), (Dictionary{{"hidden", hidden}, {"text", "a text"}}));
    }
}

INSTANTIATE_TEST_SUITE_P(On, TextFieldContract, onBothSides<ControlsStage>(), nameOfSide);

} // namespace qbsp::contracts
