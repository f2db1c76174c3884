#pragma once

#import <AppKit/AppKit.h>

#include <string>
#include <vector>

/// The hide list's data source: names and flags, as the pane would have them.
@interface PaneListing : NSObject {
@public
    std::vector<std::string> names;
    std::vector<bool> flags;
}
@end
