#pragma once

#import "QBSPHostListener.h"
#import "QBSPTab.h"

#include "EventLog.h"
#include "Stores.h"

/// The application: takes up what the host's pane changed, and tells of it. A stand-in's switch for tests:
/// while QUARRYBOOK_SORTER_HANGS is set in the environment, it does not quit when it is asked to.
@interface QBSPSorter : NSObject <QBSPHostNotices> {
    standin::EventLog* eventLog;
    standin::Stores* stores;
    QBSPHostListener* listener;
    QBSPTab* tab;
}

@end
