#include "appkit/recorder/gnustep/X11Repetition.h"

#include <X11/XKBlib.h>

namespace qbsp::recorder {

void omitReleasesOfHeldKeys(void* display) {
    if (display != nullptr)
        XkbSetDetectableAutoRepeat(static_cast<Display*>(display), True, nullptr);
}

} // namespace qbsp::recorder
