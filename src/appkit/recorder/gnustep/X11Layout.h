#pragma once

#include "appkit/recorder/gnustep/X11KeyCodes.h"

#include <string>

namespace qbsp::recorder {

/// The X server's current keyboard layout.
class X11Layout {
public:
    /// Takes an open connection (a Display*), which must outlive the layout. Without one, no key prints
    /// anything and none is a modifier.
    explicit X11Layout(void* display) : display_(display) {}

    /// The text that the key prints without modifiers, in UTF-8; empty when it prints none.
    [[nodiscard]] std::string text(X11KeyCode keyCode) const;

    /// True for keys that do nothing on their own: Shift, Alt Gr, Caps Lock and their like.
    [[nodiscard]] bool isModifierKey(X11KeyCode keyCode) const;

    /// The modifier that the key is; 0 for keys that are none of the four.
    [[nodiscard]] CocoaFlags modifier(X11KeyCode keyCode) const;

private:
    [[nodiscard]] unsigned long keySym(X11KeyCode keyCode, unsigned group) const;
    [[nodiscard]] unsigned currentGroup() const;

    void* display_;
};

} // namespace qbsp::recorder
