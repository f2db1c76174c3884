#import "appkit/recorder/gnustep/QBSPLayoutReceiver.h"

#include "appkit/recorder/gnustep/X11LayoutWatch.h"

#include <cstdint>

using namespace qbsp::recorder;

/// The run loop takes a descriptor cast to a pointer.
static void* eventOf(const X11LayoutWatch& watch) {
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-reinterpret-cast,performance-no-int-to-ptr)
    return reinterpret_cast<void*>(static_cast<std::intptr_t>(watch.descriptor()));
}

@implementation QBSPLayoutReceiver

- (id)initWithWatch:(X11LayoutWatch&)aWatch listener:(LayoutListener&)aListener {
    if ((self = [super init]) != nil) {
        watch = &aWatch;
        listener = &aListener;
        if (watch->descriptor() >= 0)
            [[NSRunLoop currentRunLoop] addEvent:eventOf(*watch)
                                            type:ET_RDESC
                                         watcher:self
                                         forMode:NSDefaultRunLoopMode];
    }
    return self;
}

- (void)invalidate {
    if (watch->descriptor() >= 0)
        [[NSRunLoop currentRunLoop] removeEvent:eventOf(*watch)
                                           type:ET_RDESC
                                        forMode:NSDefaultRunLoopMode
                                            all:YES];
}

#pragma mark - RunLoopEvents

- (void)receivedEvent:(void*)data type:(RunLoopEventType)type extra:(void*)extra forMode:(NSString*)mode {
    if (watch->readNews())
        listener->layoutChanged();
}

@end
