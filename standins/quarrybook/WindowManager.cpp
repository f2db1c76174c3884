#include "WindowManager.h"

#include <X11/Xlib.h>
#include <memory>

namespace quarrybook {

bool hasWindowManager() {
    const std::unique_ptr<Display, int (*)(Display*)> display(XOpenDisplay(nullptr), XCloseDisplay);
    if (display == nullptr)
        return false;
    XWindowAttributes root{};
    XGetWindowAttributes(display.get(), XDefaultRootWindow(display.get()), &root);
    // A window manager, of which there can be one, has what other programs ask for windows sent to itself.
    return (root.all_event_masks & SubstructureRedirectMask) != 0;
}

} // namespace quarrybook
