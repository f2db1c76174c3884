#pragma once

#include "platform/URL.h"
#include "platform/Workspace.h"

namespace qbsp::appkit {

/// Launches the application at that URL without waiting for it. If an application is already running from
/// that URL, returns that one.
[[nodiscard]] platform::LaunchResult launchApplication(const platform::URL& url,
                                                       platform::LaunchOptions options);

} // namespace qbsp::appkit
