#import "QBSPSorter.h"

#include "Description.h"
#include "EventLog.h"
#include "Stores.h"

#include <cstdlib>
#include <string>

static NSString* const usualHost = @"Quarrybook";
static NSString* const visibilityEntry = @"visibility";

// The poster is the host whose settings changed.
static NSString* hostOf(NSNotification* notice) {
    return [[notice object] isKindOfClass:[NSString class]] ? [notice object] : usualHost;
}

// A Boolean arrives as a number.
static NSDictionary* payloadOf(NSNotification* notice) {
    id visibility = [[notice userInfo] objectForKey:visibilityEntry];
    if (![visibility isKindOfClass:[NSNumber class]])
        return [notice userInfo];
    NSMutableDictionary* payload = [NSMutableDictionary dictionaryWithDictionary:[notice userInfo]];
    [payload setObject:[NSNumber numberWithBool:[visibility boolValue]] forKey:visibilityEntry];
    return payload;
}

static std::string lineOf(NSNotification* notice, const std::string& values) {
    const std::string name = [[notice name] UTF8String];
    return name + " object=" + standin::description([notice object]) +
           " userInfo=" + standin::description(payloadOf(notice)) + " " + values;
}

@implementation QBSPSorter

- (id)init {
    if ((self = [super init]) != nil)
        eventLog = std::make_unique<standin::EventLog>(standin::EventLog::ofUser());
    return self;
}

- (void)dealloc {
    [listener release];
    [tab release];
    [super dealloc];
}

- (void)logStart {
    NSString* identifier = [[NSBundle mainBundle] bundleIdentifier];
    eventLog->write("started " + std::string([identifier UTF8String]));
    eventLog->write("settings " + stores->visibility(usualHost) + " " + stores->hotKeys(usualHost) + " " +
                    stores->hideList());
}

#pragma mark - NSApplicationDelegate

- (void)applicationDidFinishLaunching:(NSNotification*)notification {
    stores = std::make_unique<standin::Stores>([[NSBundle mainBundle] bundleIdentifier]);
    tab = [[QBSPTab alloc] init];
    [tab setVisible:stores->tabIsVisible(usualHost)];
    listener = [[QBSPHostListener alloc] initWithReceiver:self];
    [listener listen];
    // Launching finishes only once the run loop runs.
    [self performSelector:@selector(logStart) withObject:nil afterDelay:0];
}

- (NSApplicationTerminateReply)applicationShouldTerminate:(NSApplication*)sender {
    if (std::getenv("QUARRYBOOK_SORTER_HANGS") == nullptr)
        return NSTerminateNow;
    eventLog->write("asked to quit, and hangs");
    return NSTerminateCancel;
}

- (void)applicationWillTerminate:(NSNotification*)notification {
    eventLog->write("quitting");
}

#pragma mark - QBSPHostNotices

- (void)hotKeysChanged:(NSNotification*)notice {
    eventLog->write(lineOf(notice, stores->hotKeys(hostOf(notice))));
}

- (void)preferencesUpdated:(NSNotification*)notice {
    NSString* host = hostOf(notice);
    [tab setVisible:stores->tabIsVisible(host)];
    eventLog->write(lineOf(notice, stores->visibility(host) + " " + stores->hotKeys(host)));
}

- (void)hideListUpdated:(NSNotification*)notice {
    eventLog->write(lineOf(notice, stores->hideList()));
}

- (void)listensAgain {
    eventLog->write("listening again");
}

@end
