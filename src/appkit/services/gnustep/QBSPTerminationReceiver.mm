#import "appkit/services/gnustep/QBSPTerminationReceiver.h"

#include "appkit/bridge/Strings.h"
#include "processes/Applications.h"

#import <AppKit/AppKit.h>

#include <array>

static const NSTimeInterval timeBetweenLooks = 0.25;

// An application announces its end before it has ended.
static const NSTimeInterval timeToEnd = 0.05;

// An alert or a panel may be open meanwhile.
static const std::array<NSString*, 3> modes{NSDefaultRunLoopMode, NSModalPanelRunLoopMode,
                                            NSEventTrackingRunLoopMode};

static NSString* const bundleIdentifier = @"NSApplicationBundleIdentifier";

static std::string text(id object) {
    return qbsp::appkit::utf8([object isKindOfClass:[NSString class]] ? object : nil);
}

static NSNumber* number(id object) {
    return [object isKindOfClass:[NSNumber class]] ? object : nil;
}

@implementation QBSPTerminationReceiver

- (id)initWithObserver:(std::weak_ptr<qbsp::platform::TerminationObserver>)anObserver name:(NSString*)name {
    if ((self = [super init]) != nil) {
        observer = std::move(anObserver);
        terminations = std::make_unique<processes::Terminations>(processes::runningApplications());
        timer = [NSTimer timerWithTimeInterval:timeBetweenLooks
                                        target:self
                                      selector:@selector(look)
                                      userInfo:nil
                                       repeats:YES];
        for (NSString* mode : modes)
            [[NSRunLoop currentRunLoop] addTimer:timer forMode:mode];
        [[[NSWorkspace sharedWorkspace] notificationCenter] addObserver:self
                                                               selector:@selector(applicationAnnouncedItsEnd:)
                                                                   name:name
                                                                 object:nil];
    }
    return self;
}

- (void)invalidate {
    [[[NSWorkspace sharedWorkspace] notificationCenter] removeObserver:self];
    [NSObject cancelPreviousPerformRequestsWithTarget:self];
    [timer invalidate];
    timer = nil;
}

- (void)reportEndOf:(const std::string&)identifier {
    const auto receiver = observer.lock();
    if (receiver != nullptr && timer != nil)
        receiver->appDied({{{qbsp::appkit::utf8(bundleIdentifier), identifier}}});
}

- (void)look {
    // The observer may end the observation, and with it this object, while it is told.
    [[self retain] autorelease];
    if (observer.expired())
        return [self invalidate];
    for (const std::string& identifier : terminations->look(processes::runningApplications()))
        [self reportEndOf:identifier];
}

- (void)applicationAnnouncedItsEnd:(NSNotification*)notification {
    NSDictionary* application = [notification userInfo];
    const std::string identifier = text([application objectForKey:bundleIdentifier]);
    const std::string bundle = text([application objectForKey:@"NSApplicationPath"]);
    [self look];
    terminations->announced([number([application objectForKey:@"NSApplicationProcessIdentifier"]) intValue],
                            identifier.empty() ? processes::identifierOfBundle(bundle) : identifier);
    [self performSelector:@selector(look)
               withObject:nil
               afterDelay:timeToEnd
                  inModes:[NSArray arrayWithObjects:modes.data() count:modes.size()]];
}

@end
