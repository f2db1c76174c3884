#include "Contract.h"
#include "Samples.h"
#include "stages/ControlsStage.h"

namespace qbsp::contracts {

using platform::Dictionary;
using platform::KeyCombo;

namespace {

constexpr platform::CocoaFlags command = 0x100000;
constexpr platform::CocoaFlags allModifiers = 0x1e0000;

class Delegate final : public platform::RecorderDelegate {
public:
    bool shortcutRecorderIsKeyCodeAndFlagsTakenReason(const platform::RecorderControl&, std::int64_t,
                                                      platform::CocoaFlags,
                                                      std::optional<std::string>*) override {
        notified = true;
        return false;
    }

    void shortcutRecorderKeyComboDidChange(const platform::RecorderControl&, const KeyCombo&) override {
        notified = true;
    }

    bool notified = false;
};

class RecorderControlContract : public Contract<ControlsStage> {
protected:
    [[nodiscard]] static Dictionary looks(const KeyCombo& combo, bool hidden = false) {
        return {{"code", combo.code}, {"flags", combo.flags}, {"hidden", hidden}};
    }

    platform::RecorderControl& recorder = stage->recorder();
};

} // namespace

TEST_P(RecorderControlContract, ItIsEmptyAtFirst) {
    EXPECT_EQ(stage->shownRecorder(), looks(KeyCombo()));
}

TEST_P(RecorderControlContract, ItShowsTheCombinationThatWasSet) {
    for (const KeyCombo& combo :
         {KeyCombo{.flags = command, .code = 0}, KeyCombo{.flags = allModifiers, .code = 46},
          KeyCombo{.flags = 0, .code = 96}, KeyCombo()}) {
        recorder.setKeyCombo(combo);
        EXPECT_EQ(stage->shownRecorder(), looks(combo));
    }
}

TEST_P(RecorderControlContract, ItsDelegateIsNotNotifiedOfACombinationThatWasSet) {
    Delegate delegate;
    recorder.setDelegate(delegate);

    recorder.setKeyCombo({.flags = command, .code = 8});

    EXPECT_FALSE(delegate.notified);
}

TEST_P(RecorderControlContract, ItIsHiddenUntilItIsShownAgain) {
    for (const bool hidden : {true, false}) {
        recorder.setHidden(hidden);
        EXPECT_EQ(stage->shownRecorder(), looks(KeyCombo(), hidden));
    }
}

INSTANTIATE_TEST_SUITE_P(On, RecorderControlContract, onBothSides<ControlsStage>(), nameOfSide);

} // namespace qbsp::contracts
