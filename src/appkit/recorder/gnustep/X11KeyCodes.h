#pragma once

#include "appkit/recorder/VirtualKeys.h"

namespace qbsp::recorder {

/// An X key code (that of Linux's input devices plus 8). 0 is no key.
using X11KeyCode = unsigned;

/// The same key on the Mac's keyboard; noKey when there is none.
[[nodiscard]] VirtualKey virtualKeyOfX11(X11KeyCode keyCode);

/// The X key code of the same key; 0 when there is none.
[[nodiscard]] X11KeyCode x11KeyOfVirtual(VirtualKey key);

} // namespace qbsp::recorder
