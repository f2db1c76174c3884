#pragma once

#import "QBSPHostListener.h"
#import "QBSPTab.h"

#include <memory>

namespace standin {
class EventLog;
class Stores;
}

/// The application's delegate: reads what the host's pane changed, and logs it. For tests: while
/// QUARRYBOOK_SORTER_HANGS is set in the environment, it does not quit when asked to.
@interface QBSPSorter : NSObject <QBSPHostNotices> {
    std::unique_ptr<standin::EventLog> eventLog;
    std::unique_ptr<standin::Stores> stores;
    QBSPHostListener* listener;
    QBSPTab* tab;
}

@end
