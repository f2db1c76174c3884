#pragma once

namespace qbsp::appkit {

/// Has the daemon that carries distributed notifications between processes ready for a notice: it is started
/// when it has ended. False when it does not come up soon; whoever posts then would wait for it.
[[nodiscard]] bool notificationDaemonIsReady();

/// Keeps this process from waiting for a daemon that was stopped, for as long as it goes on with the same
/// one.
void boundWaitForNotificationDaemon();

} // namespace qbsp::appkit
