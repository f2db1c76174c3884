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
    earlier_.reset();
    listener_.usedElsewhere(false);
    listener_.lookChanged();
}

void RecorderLogic::review() {
    listener_.usedElsewhere(holdsKey(combo_) && listener_.isTaken(combo_));
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
    endListening();
    listener_.refusalPassed();
    listener_.lookChanged();
}

void RecorderLogic::endListening() {
    armed_ = false;
    held_ = 0;
}

void RecorderLogic::clear() {
    accept({});
}

void RecorderLogic::undo() {
    if (armed_ || !earlier_)
        return;
    const KeyCombo wanted = *earlier_;
    listener_.refusalPassed();
    holdsKey(wanted) ? offer(wanted) : clear();
}

void RecorderLogic::setHeldModifiers(CocoaFlags held) {
    const CocoaFlags shown = armed_ ? held & modifiers::all : 0;
    if (shown == held_)
        return;
    held_ = shown;
    listener_.lookChanged();
}

KeyOutcome RecorderLogic::keyPressed(const KeyPress& press) {
    // A key that is held down acts only once.
    if (press.isRepeat)
        return armed_ ? KeyOutcome::handled : KeyOutcome::notHandled;
    listener_.refusalPassed();

    const CocoaFlags held = press.flags & modifiers::all;
    if (press.key == keys::tab && held == 0)
        return moveFocus(KeyOutcome::nextView);
    if (press.key == keys::tab && held == modifiers::shift)
        return moveFocus(KeyOutcome::previousView);

    const KeyOutcome plain = held == 0 ? plainKeyPressed(press.key) : KeyOutcome::notHandled;
    return plain == KeyOutcome::notHandled && armed_ ? keyPressedWhileArmed(press) : plain;
}

KeyOutcome RecorderLogic::plainKeyPressed(VirtualKey key) {
    if ((key == keys::backspace || key == keys::forwardDelete) && armed_)
        clear();
    else if (key == keys::space && !armed_)
        arm();
    else if (key == keys::escape && armed_)
        disarm();
    else
        return KeyOutcome::notHandled;
    return KeyOutcome::handled;
}

KeyOutcome RecorderLogic::keyPressedWhileArmed(const KeyPress& press) {
    const KeyCombo combo{.flags = press.flags & modifiers::all, .code = press.key};
    if (const auto refusal = refusalOf(combo))
        listener_.refused(*refusal);
    else
        offer(combo);
    return KeyOutcome::handled;
}

KeyOutcome RecorderLogic::moveFocus(KeyOutcome direction) {
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
    const KeyCombo before = combo_;
    const bool changed = combo != before;
    combo_ = combo;
    endListening();
    listener_.refusalPassed();
    listener_.lookChanged();
    if (!changed)
        return;
    earlier_ = before;
    listener_.usedElsewhere(false);
    listener_.comboChanged(combo);
}

} // namespace qbsp::recorder
