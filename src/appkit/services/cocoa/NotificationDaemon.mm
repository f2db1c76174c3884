#include "appkit/services/NotificationDaemon.h"

namespace qbsp::appkit {

// The system looks after its daemon, and nobody waits for it.

bool notificationDaemonIsReady() {
    return true;
}

void boundWaitForNotificationDaemon() {}

} // namespace qbsp::appkit
