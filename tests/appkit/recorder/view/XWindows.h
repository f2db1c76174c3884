#pragma once

namespace qbsp::recorder {

/// What only the X server knows about a window: AppKit calls a window key before the
/// window manager has agreed, and does not learn at once where the window manager has put it.
class XWindow {
public:
    /// Takes a Display* and the window's number.
    XWindow(void* display, unsigned long window) : display_(display), window_(window) {}

    /// True when keys go to a window of the client that owns this one.
    [[nodiscard]] bool hasKeyboard() const;

    /// True when the client that owns the window is sent no release of a key while it is held down.
    [[nodiscard]] bool isSentNoReleaseOfHeldKeys() const;

    /// Makes the second of the keyboard's layouts the one in use.
    void useSecondLayout() const;

    struct Point {
        int x;
        int y;
    };

    /// The place on the screen of a point in the window; both count from the top left.
    [[nodiscard]] Point onScreen(Point point) const;

private:
    void* display_;
    unsigned long window_;
};

} // namespace qbsp::recorder
