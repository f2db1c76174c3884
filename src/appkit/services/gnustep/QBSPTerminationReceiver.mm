#import "appkit/services/gnustep/QBSPTerminationReceiver.h"

#include "appkit/bridge/Strings.h"
#include "applications/Applications.h"
#include "processes/Terminations.h"

#import <AppKit/AppKit.h>

#include <array>
#include <cstdint>
#include <utility>

NSString* const QBSPApplicationFoundRunning = @"QBSPApplicationFoundRunning";

// An application announces its end before its process has ended. Where the system cannot watch the process,
// it is checked again after this time, in seconds.
static const NSTimeInterval timeToEnd = 0.05;

// An alert or a panel may be open meanwhile.
static const std::array<NSString*, 3> modes{NSDefaultRunLoopMode, NSModalPanelRunLoopMode,
                                            NSEventTrackingRunLoopMode};

// Keys in the userInfo of GNUstep's workspace notifications, besides the bundle identifier.
static NSString* const applicationPath = @"NSApplicationPath";
static NSString* const applicationProcess = @"NSApplicationProcessIdentifier";

namespace qbsp::appkit {

struct TerminationReceiverParts {
    std::weak_ptr<platform::TerminationObserver> observer;
    processes::Terminations terminations;
};

} // namespace qbsp::appkit

static std::string text(id object) {
    return qbsp::appkit::utf8([object isKindOfClass:[NSString class]] ? object : nil);
}

/// 0 when the notification does not have it.
static pid_t processNumber(NSDictionary* application) {
    id number = [application objectForKey:applicationProcess];
    return [number isKindOfClass:[NSNumber class]] ? [number intValue] : 0;
}

static std::string identifierIn(NSDictionary* application) {
    const std::string identifier = text(
        [application objectForKey:qbsp::appkit::nsString(qbsp::platform::NSApplicationBundleIdentifier)]);
    return identifier.empty()
               ? applications::identifierOfBundle(text([application objectForKey:applicationPath]))
               : identifier;
}

static NSNotificationCenter* workspaceNotificationCenter() {
    return [[NSWorkspace sharedWorkspace] notificationCenter];
}

/// The run loop takes a descriptor cast to a pointer.
static void* eventOf(const processes::Terminations& terminations) {
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-reinterpret-cast,performance-no-int-to-ptr)
    return reinterpret_cast<void*>(static_cast<std::intptr_t>(terminations.descriptor()));
}

@implementation QBSPTerminationReceiver

- (void)awaitDescriptor {
    if (parts->terminations.descriptor() < 0)
        return;
    for (NSString* mode : modes)
        [[NSRunLoop currentRunLoop] addEvent:eventOf(parts->terminations)
                                        type:ET_RDESC
                                     watcher:self
                                     forMode:mode];
}

- (void)invalidate {
    parts->observer.reset();
    [workspaceNotificationCenter() removeObserver:self];
    [[NSNotificationCenter defaultCenter] removeObserver:self];
    [NSObject cancelPreviousPerformRequestsWithTarget:self];
    for (NSString* mode : modes)
        [[NSRunLoop currentRunLoop] removeEvent:eventOf(parts->terminations)
                                           type:ET_RDESC
                                        forMode:mode
                                            all:YES];
}

- (void)reportEnds {
    // The observer may stop observing, and so release this object, while it is being notified.
    [[self retain] autorelease];
    if (parts->observer.expired())
        return [self invalidate];
    for (const std::string& identifier : parts->terminations.ended())
        if (const auto observer = parts->observer.lock())
            observer->appDied({{{qbsp::platform::NSApplicationBundleIdentifier, identifier}}});
}

- (void)reportEndsAfterDelay:(NSTimeInterval)delay {
    [self performSelector:@selector(reportEnds)
               withObject:nil
               afterDelay:delay
                  inModes:[NSArray arrayWithObjects:modes.data() count:modes.size()]];
}

- (void)lookAtRunningApplications {
    parts->terminations.learn(applications::runningApplications());
}

- (void)applicationWasFoundRunning {
    [self lookAtRunningApplications];
    // What has ended meanwhile is reported from the run loop, never in the middle of the observer's own call.
    [self reportEndsAfterDelay:0];
}

- (id)initWithObserver:(std::weak_ptr<qbsp::platform::TerminationObserver>)anObserver name:(NSString*)name {
    if ((self = [super init]) != nil) {
        parts = std::make_unique<qbsp::appkit::TerminationReceiverParts>();
        parts->observer = std::move(anObserver);
        [self awaitDescriptor];
        // Subscribes before it looks, so that an application that starts in between is not missed.
        [workspaceNotificationCenter() addObserver:self
                                          selector:@selector(applicationWillTerminate:)
                                              name:name
                                            object:nil];
        [workspaceNotificationCenter() addObserver:self
                                          selector:@selector(applicationDidLaunch:)
                                              name:NSWorkspaceDidLaunchApplicationNotification
                                            object:nil];
        [[NSNotificationCenter defaultCenter] addObserver:self
                                                 selector:@selector(applicationWasFoundRunning)
                                                     name:QBSPApplicationFoundRunning
                                                   object:nil];
        [self applicationWasFoundRunning];
    }
    return self;
}

- (void)applicationDidLaunch:(NSNotification*)notification {
    [self lookAtRunningApplications];
    // It may have ended since.
    if (const pid_t process = processNumber([notification userInfo]))
        parts->terminations.announced(process, identifierIn([notification userInfo]));
    [self reportEnds];
}

- (void)applicationWillTerminate:(NSNotification*)notification {
    [self lookAtRunningApplications];
    const std::string identifier = identifierIn([notification userInfo]);
    if (const pid_t process = processNumber([notification userInfo]))
        parts->terminations.announced(process, identifier);
    else
        parts->terminations.announcedEnd(identifier);
    [self reportEnds];
    [self reportEndsAfterDelay:timeToEnd];
}

#pragma mark - RunLoopEvents

- (void)receivedEvent:(void*)data type:(RunLoopEventType)type extra:(void*)extra forMode:(NSString*)mode {
    [self reportEnds];
}

@end
