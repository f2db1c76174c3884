#pragma once

#include "appkit/recorder/Keyboard.h"

#include <memory>

namespace qbsp::recorder {
class X11LayoutWatch;
}

/// Waits in the run loop for a new keyboard layout.
@interface QBSPLayoutReceiver : NSObject <RunLoopEvents> {
@private
    qbsp::recorder::X11LayoutWatch* watch;
    qbsp::recorder::LayoutListener* listener;
}

/// Watch and listener must live until invalidate is called.
- (id)initWithWatch:(qbsp::recorder::X11LayoutWatch&)aWatch
           listener:(qbsp::recorder::LayoutListener&)aListener;

/// Stops waiting. Must be called before the last release.
- (void)invalidate;

@end
