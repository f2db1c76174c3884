#include "XWindows.h"

#include <X11/XKBlib.h>

namespace qbsp::recorder {

namespace {

/// Each client's windows have numbers from a range of its own.
constexpr unsigned long clientMask = 0xffe00000;

} // namespace

bool XWindow::hasKeyboard() const {
    Window focused = None;
    int revertTo = 0;
    XGetInputFocus(static_cast<Display*>(display_), &focused, &revertTo);
    return (focused & clientMask) == (window_ & clientMask);
}

bool XWindow::isSentNoReleaseOfHeldKeys() const {
    return XkbGetDetectableAutoRepeat(static_cast<Display*>(display_), nullptr) == True;
}

void XWindow::useSecondLayout() const {
    XkbLockGroup(static_cast<Display*>(display_), XkbUseCoreKbd, 1);
    XFlush(static_cast<Display*>(display_));
}

XWindow::Point XWindow::onScreen(Point point) const {
    Display* display = static_cast<Display*>(display_);
    Point result{};
    Window child = None;
    XTranslateCoordinates(display, window_, DefaultRootWindow(display), point.x, point.y, &result.x,
                          &result.y, &child);
    return result;
}

} // namespace qbsp::recorder
