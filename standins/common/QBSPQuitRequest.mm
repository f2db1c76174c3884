#import "QBSPQuitRequest.h"

#import <AppKit/AppKit.h>

#include <array>
#include <csignal>
#include <tuple>
#include <unistd.h>

static std::array<int, 2> pipeEnds;

static void passOn(int) {
    // A full pipe already holds a request.
    std::ignore = write(pipeEnds[1], "", 1);
}

@implementation QBSPQuitRequest

+ (void)heed {
    if (pipe(pipeEnds.data()) != 0)
        return;
    NSFileHandle* requests = [[NSFileHandle alloc] initWithFileDescriptor:pipeEnds[0]];
    [[NSNotificationCenter defaultCenter] addObserver:self
                                             selector:@selector(requested:)
                                                 name:NSFileHandleReadCompletionNotification
                                               object:requests];
    [requests readInBackgroundAndNotify];
    std::signal(SIGTERM, passOn);
}

+ (void)requested:(NSNotification*)notification {
    [[notification object] readInBackgroundAndNotify];
    [NSApp terminate:nil];
}

@end
