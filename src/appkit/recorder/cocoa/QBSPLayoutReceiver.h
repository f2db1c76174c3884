#pragma once

#include "appkit/recorder/Keyboard.h"

/// Is notified of a new keyboard layout.
@interface QBSPLayoutReceiver : NSObject {
@private
    qbsp::recorder::LayoutListener* listener;
}

/// The listener must live until invalidate is called.
- (id)initWithListener:(qbsp::recorder::LayoutListener&)aListener;

/// No notice is passed on from now on.
- (void)invalidate;

@end
