#include "appkit/recorder/gnustep/X11LayoutWatch.h"

#include <X11/XKBlib.h>

namespace qbsp::recorder {

namespace {

Display* xDisplay(void* display) {
    return static_cast<Display*>(display);
}

/// Other keys, other letters on them, or another of the keyboard's layouts in use.
void selectNews(Display* display) {
    XkbSelectEvents(display, XkbUseCoreKbd, XkbNewKeyboardNotifyMask | XkbMapNotifyMask,
                    XkbNewKeyboardNotifyMask | XkbMapNotifyMask);
    XkbSelectEventDetails(display, XkbUseCoreKbd, XkbStateNotify, XkbGroupStateMask, XkbGroupStateMask);
    XFlush(display);
}

} // namespace

X11LayoutWatch::X11LayoutWatch(void* applicationsDisplay) : applicationsDisplay_(applicationsDisplay) {
    if (applicationsDisplay == nullptr)
        return;
    display_ = XkbOpenDisplay(DisplayString(xDisplay(applicationsDisplay)), &firstXkbEvent_, nullptr, nullptr,
                              nullptr, nullptr);
    if (display_ != nullptr)
        selectNews(xDisplay(display_));
}

X11LayoutWatch::~X11LayoutWatch() {
    if (display_ != nullptr)
        XCloseDisplay(xDisplay(display_));
}

int X11LayoutWatch::descriptor() const {
    return display_ == nullptr ? -1 : ConnectionNumber(xDisplay(display_));
}

bool X11LayoutWatch::readNews() {
    bool isNew = false;
    while (display_ != nullptr && XPending(xDisplay(display_)) > 0) {
        XkbEvent event{};
        XNextEvent(xDisplay(display_), &event.core);
        isNew = isNewLayout(&event) || isNew;
    }
    return isNew;
}

bool X11LayoutWatch::isNewLayout(void* event) const {
    auto* news = static_cast<XkbEvent*>(event);
    if (news->type == MappingNotify)
        XRefreshKeyboardMapping(&news->core.xmapping);
    else if (news->type != firstXkbEvent_)
        return false;
    else if (news->any.xkb_type != XkbStateNotify)
        XkbRefreshKeyboardMapping(&news->map);
    return true;
}

} // namespace qbsp::recorder
