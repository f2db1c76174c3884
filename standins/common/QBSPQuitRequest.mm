#import "QBSPQuitRequest.h"

#import <AppKit/AppKit.h>

#include <array>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <pthread.h>
#include <tuple>
#include <unistd.h>

static std::array<int, 2> pipeEnds;

static void passOn(int) {
    const int interrupted = errno;
    // A full pipe already holds a request.
    std::ignore = write(pipeEnds[1], "", 1);
    errno = interrupted;
}

static void maskRequests(int how) {
    sigset_t requests;
    sigemptyset(&requests);
    sigaddset(&requests, SIGTERM);
    pthread_sigmask(how, &requests, nullptr);
}

@implementation QBSPQuitRequest

+ (void)hold {
    maskRequests(SIG_BLOCK);
}

+ (void)listen {
    NSFileHandle* requests = [[NSFileHandle alloc] initWithFileDescriptor:pipeEnds[0]];
    [[NSNotificationCenter defaultCenter] addObserver:self
                                             selector:@selector(requested:)
                                                 name:NSFileHandleReadCompletionNotification
                                               object:requests];
    [requests readInBackgroundAndNotify];
    std::signal(SIGTERM, passOn);
}

+ (void)accept {
    if (pipe2(pipeEnds.data(), O_CLOEXEC) == 0)
        [self listen];
    maskRequests(SIG_UNBLOCK);
}

+ (void)requested:(NSNotification*)notification {
    [[notification object] readInBackgroundAndNotify];
    [NSApp terminate:nil];
}

@end
