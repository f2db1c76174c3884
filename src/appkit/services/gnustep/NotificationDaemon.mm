#include "appkit/services/NotificationDaemon.h"

#include "objc/GSTry.h"

#import <Foundation/Foundation.h>
#include <objc/runtime.h>

#include <chrono>

namespace qbsp::appkit {

namespace {

using Clock = std::chrono::steady_clock;

constexpr auto longestStart = std::chrono::milliseconds(600);
constexpr auto pauseAfterFailedStart = std::chrono::seconds(5);

/// GNUstep's connection to the daemon; nil when it has none.
NSConnection* connectionToDaemon() {
    Ivar remote = class_getInstanceVariable([NSDistributedNotificationCenter class], "_remote");
    NSDistantObject* daemon = object_getIvar([NSDistributedNotificationCenter defaultCenter], remote);
    NSConnection* connection = [daemon connectionForProxy];
    return [connection isValid] ? connection : nil;
}

bool isRegistered() {
    NSPort* port = nil;
    const auto look = [&] {
        port = [[NSPortNameServer systemDefaultPortNameServer] portForName:@"GDNCServer" onHost:@""];
    };
    return objc::tryObjC(look) == nil && port != nil;
}

bool comesUp() {
    const auto start = [] {
        // As GNUstep starts it.
        NSArray* arguments = [NSArray arrayWithObjects:@"--auto", @"--daemon", nil];
        [NSTask launchedTaskWithLaunchPath:[NSTask launchPathForTool:@"gdnc"] arguments:arguments];
    };
    if (objc::tryObjC(start) != nil)
        return false;
    const auto limit = Clock::now() + longestStart;
    while (!isRegistered() && Clock::now() < limit)
        [NSThread sleepForTimeInterval:0.01];
    return isRegistered();
}

} // namespace

// GNUstep would start it too, and wait for it for many seconds.
bool notificationDaemonIsReady() {
    static Clock::time_point nextStart; // a notice is often followed by others
    boundWaitForNotificationDaemon();
    if (connectionToDaemon() != nil || isRegistered())
        return true;
    if (Clock::now() < nextStart)
        return false;
    const bool isUp = comesUp();
    if (!isUp)
        nextStart = Clock::now() + pauseAfterFailedStart;
    return isUp;
}

// Posting a notice waits only while the daemon has some dozens of them unread. An application that ends waits
// for the daemon's reply.
void boundWaitForNotificationDaemon() {
    NSConnection* connection = connectionToDaemon();
    [connection setRequestTimeout:0.3];
    [connection setReplyTimeout:1];
}

} // namespace qbsp::appkit
