#pragma once

#import "QBSPPreferencesWindow.h"

#include <memory>

namespace quarrybook {
struct Scenario;
}

/// Plays a scenario, one command after the other, from the run loop. It prints each command and its result; a
/// wrong line ends the program with status 2.
@interface QBSPScenarioPlayer : NSObject {
    std::unique_ptr<quarrybook::Scenario> playing;
    NSTimer* timer;
    BOOL busy;
    NSWindow* modalWindowBefore;
}

/// Nil, and a line on standard error, when the file cannot be read.
- (id)initWithFile:(const char*)path
       preferences:(QBSPPreferencesWindow*)preferences
            runner:(QBSPPaneRunner*)runner;

/// Starts. At the end the target receives the message.
- (void)playAndSend:(SEL)message to:(id)target;

@end

/// Ends the application in the ordinary way, with that exit status.
void QBSPQuitWithStatus(int status);
