// After any sequence of keys and calls a recorder is in a state that it promises. A key is four bytes: what
// happens, the key, its modifiers, and what the listener says.

#include "Require.h"
#include "appkit/recorder/KeyComboText.h"
#include "appkit/recorder/RecorderLogic.h"
#include "appkit/recorder/gnustep/EventModifiers.h"
#include "appkit/recorder/gnustep/X11KeyCodes.h"
#include "hotkeys/StoredHotKey.h"

#include <cstddef>
#include <cstdint>
#include <fuzzer/FuzzedDataProvider.h>
#include <optional>

namespace qbsp::fuzz {

namespace {

using namespace qbsp::recorder;

/// What the logic said of one event.
struct Listener final : RecorderListener {
    bool taken = false;
    bool refusalShown = false;
    bool saysUsedElsewhere = false;
    int refusals = 0;
    std::optional<KeyCombo> reported;

    bool isTaken(const KeyCombo& combo) override {
        require(holdsKey(combo) && combo == normalized(combo), "what is offered is a whole combination");
        return taken;
    }

    void refused(Refusal) override {
        refusalShown = true;
        ++refusals;
    }

    void refusalPassed() override { refusalShown = false; }

    void usedElsewhere(bool isUsed) override { saysUsedElsewhere = isUsed; }

    void comboChanged(const KeyCombo& combo) override {
        require(!reported, "one event reports one combination");
        reported = combo;
    }

    void lookChanged() override {}
};

/// A recorder with the state before the last event.
class Recorder {
public:
    void press(const KeyPress& key, bool taken) {
        begin(taken);
        const KeyOutcome outcome = logic_.keyPressed(key);
        checkReport();
        checkRefusal(outcome);
        if (key.isRepeat)
            require(logic_.combo() == before_ && logic_.isArmed() == wasArmed_, "a held key acts once");
        if (outcome == KeyOutcome::notHandled)
            require(!wasArmed_ && !listener_.reported, "a listening recorder lets no key through");
        if (outcome == KeyOutcome::nextView || outcome == KeyOutcome::previousView)
            require(!logic_.isArmed() && logic_.combo() == before_, "moving on stops listening");
    }

    void set(const KeyCombo& combo) {
        begin(false);
        logic_.setCombo(combo);
        require(!listener_.reported, "what is set is not reported");
        require(logic_.combo() == normalized(combo), "what is set is kept");
    }

    void arm() {
        begin(false);
        logic_.arm();
        require(logic_.isArmed() && logic_.combo() == before_, "it listens, and keeps its combination");
    }

    void disarm() {
        begin(false);
        logic_.disarm();
        require(!logic_.isArmed() && logic_.combo() == before_, "it is idle, and keeps its combination");
    }

    void clear() {
        begin(false);
        logic_.clear();
        checkReport();
        require(!logic_.isArmed() && !holdsKey(logic_.combo()), "it is idle and empty");
    }

    void review(bool taken) {
        begin(taken);
        logic_.review();
        require(listener_.saysUsedElsewhere == (taken && holdsKey(before_)), "a review says what is so");
        require(!listener_.reported && logic_.combo() == before_, "a review changes nothing");
    }

    void hold(CocoaFlags flags) {
        begin(false);
        logic_.setHeldModifiers(flags);
        require(logic_.heldModifiers() == (wasArmed_ ? flags & modifiers::all : 0),
                "modifiers wait for a key while it listens");
    }

    void check() const {
        const KeyCombo& combo = logic_.combo();
        require(combo == normalized(combo), "its combination is whole or empty");
        const auto nothing = [](VirtualKey) {
            return std::string();
        };
        if (!holdsKey(combo))
            require(comboText(combo, macSymbols(), nothing).empty() &&
                        comboText(combo, pcWords({"Ctrl", "Alt", "Shift", "Super"}), nothing).empty(),
                    "the empty combination shows nothing");
        require(logic_.isArmed() || logic_.heldModifiers() == 0, "no modifier waits in an idle recorder");
        require(holdsKey(combo) || !listener_.saysUsedElsewhere, "no combination is used nowhere");
        require(logic_.isArmed() || !listener_.refusalShown, "an idle recorder shows no refusal");
    }

    [[nodiscard]] const KeyCombo& combo() const { return logic_.combo(); }

private:
    void begin(bool taken) {
        before_ = logic_.combo();
        wasArmed_ = logic_.isArmed();
        listener_.taken = taken;
        listener_.refusals = 0;
        listener_.reported.reset();
    }

    void checkReport() const {
        require(listener_.reported.has_value() == (logic_.combo() != before_),
                "a combination is reported when it changed, and only then");
        if (listener_.reported)
            require(*listener_.reported == logic_.combo() && !logic_.isArmed(),
                    "what is reported is what it has, and it listens no more");
    }

    void checkRefusal(KeyOutcome outcome) const {
        if (listener_.refusals == 0)
            return;
        require(listener_.refusals == 1 && outcome == KeyOutcome::handled, "a key is refused once");
        require(wasArmed_ && logic_.isArmed() && logic_.combo() == before_,
                "a refusal leaves the recorder listening");
    }

    Listener listener_;
    RecorderLogic logic_{listener_};
    KeyCombo before_;
    bool wasArmed_ = false;
};

void checkModifiers(EventModifiers& modifiers, unsigned event, CocoaFlags modifier, CocoaFlags flags) {
    if (event == 0)
        modifiers.flagsChanged(modifier, flags);
    else if (event == 1)
        modifiers.keyDown(modifier);
    else if (event == 2)
        modifiers.keyUp(modifier);
    else
        modifiers.forgetHeldKeys();
    require((modifiers.held(flags) & ~modifiers::all) == 0, "held modifiers are modifiers");
}

void checkKeyCode(X11KeyCode code) {
    const VirtualKey key = virtualKeyOfX11(code);
    if (key != noKey)
        require(virtualKeyOfX11(x11KeyOfVirtual(key)) == key, "a key's code leads back to the key");
}

/// What a recorder accepts is stored and comes back; the key codes that are stored have 16 bits.
void checkStoredForm(const KeyCombo& combo) {
    if (combo.code > INT16_MAX)
        return;
    const auto stored = StoredHotKey::read(storedCode(combo), storedModifiers(combo));
    require(stored.keyCombo() == combo, "a combination is read as it was stored");
    require(stored.matches(combo.code, combo.flags), "a stored combination is taken");
}

} // namespace

} // namespace qbsp::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace qbsp::fuzz;
    FuzzedDataProvider input(data, size);
    Recorder recorder;
    EventModifiers modifiers;
    while (input.remaining_bytes() > 0) {
        const auto event = input.ConsumeIntegralInRange<unsigned>(0, 9);
        const auto key =
            static_cast<VirtualKey>(input.ConsumeIntegral<std::int8_t>()) * (event == 9 ? 500 : 1);
        const auto flags = static_cast<CocoaFlags>(input.ConsumeIntegral<std::uint8_t>()) << 15U;
        const bool yes = input.ConsumeBool();
        if (event == 0)
            recorder.arm();
        else if (event == 1)
            recorder.disarm();
        else if (event == 2)
            recorder.clear();
        else if (event == 3 || event == 9)
            recorder.set({flags, key});
        else if (event == 7)
            recorder.hold(flags);
        else if (event == 6)
            recorder.review(yes);
        else if (event == 4)
            recorder.press({key, flags, true}, yes);
        else if (event == 5)
            checkModifiers(modifiers, static_cast<unsigned>(key) % 4,
                           modifiers::shift << (static_cast<unsigned>(key) / 4 % 4), flags);
        else
            recorder.press({key, flags, false}, yes);
        recorder.check();
        checkStoredForm(recorder.combo());
        checkKeyCode(static_cast<X11KeyCode>(key + 128));
    }
    return 0;
}
