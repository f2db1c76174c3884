#include "EventPump.h"

#import <AppKit/AppKit.h>

#include <cerrno>
#include <chrono>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

namespace qbsp::recorder {

namespace {

constexpr std::chrono::seconds limit(10);

void handleNextEvent() {
    NSAutoreleasePool* pool = [[NSAutoreleasePool alloc] init];
    NSEvent* event = [NSApp nextEventMatchingMask:NSAnyEventMask
                                        untilDate:[NSDate dateWithTimeIntervalSinceNow:0.01]
                                           inMode:NSDefaultRunLoopMode
                                          dequeue:YES];
    if (event != nil)
        [NSApp sendEvent:event];
    [NSApp updateWindows];
    [pool release];
}

} // namespace

bool waitUntil(const std::function<bool()>& condition) {
    const auto end = std::chrono::steady_clock::now() + limit;
    while (!condition()) {
        if (std::chrono::steady_clock::now() > end)
            return false;
        handleNextEvent();
    }
    return true;
}

bool run(const std::vector<std::string>& command) {
    std::vector<char*> arguments;
    for (const std::string& word : command)
        arguments.push_back(const_cast<char*>(word.c_str()));
    arguments.push_back(nullptr);

    pid_t child = 0;
    if (posix_spawnp(&child, arguments.front(), nullptr, nullptr, arguments.data(), environ) != 0)
        return false;
    // GNUstep reaps every child of the process, and may have been first.
    return waitUntil([child] {
        const pid_t ended = waitpid(child, nullptr, WNOHANG);
        return ended == child || (ended == -1 && errno == ECHILD);
    });
}

} // namespace qbsp::recorder
