#include "appkit/recorder/RecorderLogic.h"

#include <optional>

namespace qbsp::recorder {

namespace {

constexpr CocoaFlags offeredModifiers = modifiers::command | modifiers::option | modifiers::control;

std::optional<Refusal> refusalOf(const KeyCombo& combo) {
    if (!holdsKey(combo))
        return Refusal::unknownKey;
    if (isFunctionKey(combo.code) || (combo.flags & offeredModifiers) != 0)
        return std::nullopt;
    return combo.flags == 0 ? Refusal::plainKey : Refusal::shiftAlone;
}

} // namespace

RecorderLogic::RecorderLogic(RecorderListener& listener) : listener_(listener) {}

void RecorderLogic::setCombo(const KeyCombo& combo) {
    combo_ = normalized(combo);
    listener_.lookChanged();
}

void RecorderLogic::arm() {
    if (armed_)
        return;
    armed_ = true;
    listener_.lookChanged();
}

void RecorderLogic::disarm() {
    if (!armed_)
        return;
    armed_ = false;
    listener_.refusalPassed();
    listener_.lookChanged();
}

void RecorderLogic::clear() {
    accept({});
}

KeyAnswer RecorderLogic::keyPressed(const KeyPress& press) {
    // A key that is held down said everything the first time.
    if (press.isRepeat)
        return armed_ ? KeyAnswer::done : KeyAnswer::notOurs;
    listener_.refusalPassed();

    const CocoaFlags held = press.flags & modifiers::all;
    if (press.key == keys::tab && held == 0)
        return moveFocus(KeyAnswer::nextView);
    if (press.key == keys::tab && held == modifiers::shift)
        return moveFocus(KeyAnswer::previousView);

    const KeyAnswer plain = held == 0 ? plainKeyPressed(press.key) : KeyAnswer::notOurs;
    return plain == KeyAnswer::notOurs && armed_ ? keyPressedWhileArmed(press) : plain;
}

KeyAnswer RecorderLogic::plainKeyPressed(VirtualKey key) {
    if (key == keys::backspace || key == keys::forwardDelete)
        clear();
    else if (key == keys::space && !armed_)
        arm();
    else if (key == keys::escape && armed_)
        disarm();
    else
        return KeyAnswer::notOurs;
    return KeyAnswer::done;
}

KeyAnswer RecorderLogic::keyPressedWhileArmed(const KeyPress& press) {
    const KeyCombo combo{.flags = press.flags & modifiers::all, .code = press.key};
    if (const auto refusal = refusalOf(combo))
        listener_.refused(*refusal);
    else
        offer(combo);
    return KeyAnswer::done;
}

KeyAnswer RecorderLogic::moveFocus(KeyAnswer direction) {
    disarm();
    return direction;
}

void RecorderLogic::offer(const KeyCombo& combo) {
    if (listener_.isTaken(combo))
        listener_.refused(Refusal::taken);
    else
        accept(combo);
}

void RecorderLogic::accept(const KeyCombo& combo) {
    const bool changed = combo != combo_;
    combo_ = combo;
    armed_ = false;
    listener_.refusalPassed();
    listener_.lookChanged();
    if (changed)
        listener_.comboChanged(combo);
}

} // namespace qbsp::recorder
