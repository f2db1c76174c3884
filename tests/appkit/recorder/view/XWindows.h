#pragma once

namespace qbsp::recorder {

/// What the X server says of a window that AppKit cannot know for sure: AppKit calls a window key before the
/// window manager has agreed, and does not hear at once where the window manager has put it.
class XWindow {
public:
    /// Takes a Display* and the window's number.
    XWindow(void* display, unsigned long window) : display_(display), window_(window) {}

    /// True when keys go to a window of the client that owns this one.
    [[nodiscard]] bool hasKeyboard() const;

    /// True when the client that owns the window hears of no release of a key that is held down.
    [[nodiscard]] bool hearsNoReleaseOfHeldKeys() const;

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
