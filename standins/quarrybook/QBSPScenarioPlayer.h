#pragma once

#import "QBSPPreferencesWindow.h"

#include <memory>

namespace quarrybook {
struct Scenario;
}

/// Plays a scenario from the run loop, one command after the other. It prints each command and its result; an
/// error ends the program with status 2.
@interface QBSPScenarioPlayer : NSObject {
    std::unique_ptr<quarrybook::Scenario> playing;
    NSTimer* timer;
    BOOL busy;
    NSWindow* modalWindowBefore;
}

/// Returns nil, and prints a line on standard error, when the file cannot be read.
- (id)initWithFile:(const char*)path
       preferences:(QBSPPreferencesWindow*)preferences
            runner:(QBSPPaneRunner*)runner;

/// Starts playing. The target receives the message at the end.
- (void)playAndSend:(SEL)message to:(id)target;

@end

/// Terminates the application through AppKit, with that exit status.
void QBSPQuitWithStatus(int status);
