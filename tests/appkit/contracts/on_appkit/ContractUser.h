#pragma once

#import <AppKit/AppKit.h>

#include <optional>
#include <string>
#include <vector>

/// A user who responds to each dialog once: reads it, chooses a file in it, presses a button of it.
@interface ContractUser : NSObject {
@public
    std::string button;
    std::optional<std::string> choice;
    std::vector<std::string> texts;
    std::string defaultButton;
    NSTimer* timer;
    NSWindow* answered;
}

/// Looks for dialogs from now on, until it leaves.
- (void)watch;
- (void)leave;

@end
