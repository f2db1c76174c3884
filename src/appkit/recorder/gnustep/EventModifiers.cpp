#include "appkit/recorder/gnustep/EventModifiers.h"

namespace qbsp::recorder {

void EventModifiers::flagsChanged(CocoaFlags modifier, CocoaFlags eventFlags) {
    const CocoaFlags switchedOn = eventFlags & ~lastEventFlags_;
    lastEventFlags_ = eventFlags;
    // Several flags at once were set without an event, and say nothing about this key.
    for (Meaning& meaning : meanings_)
        if (modifier != 0 && meaning.eventBit == switchedOn)
            meaning.modifier = modifier;
}

void EventModifiers::forgetHeldKeys() {
    lastEventFlags_ = 0;
    heldKeys_ = 0;
}

CocoaFlags EventModifiers::held(CocoaFlags eventFlags) const {
    CocoaFlags held = heldKeys_;
    for (const Meaning& meaning : meanings_)
        if ((eventFlags & meaning.eventBit) != 0)
            held |= meaning.modifier;
    return held;
}

} // namespace qbsp::recorder
