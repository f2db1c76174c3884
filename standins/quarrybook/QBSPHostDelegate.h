#pragma once

#import "QBSPPreferencesWindow.h"
#import "QBSPScenarioPlayer.h"

namespace quarrybook {
struct Options;
}

/// The application's delegate: starts Quarrybook as its options say, and quits it.
@interface QBSPHostDelegate : NSObject {
    const quarrybook::Options* options;
    QBSPPaneRunner* runner;
    QBSPPreferencesWindow* preferences;
    QBSPScenarioPlayer* player;
}

/// The options are not copied: they must outlive this object.
- (id)initWithCommandLine:(const quarrybook::Options*)theOptions;

@end
