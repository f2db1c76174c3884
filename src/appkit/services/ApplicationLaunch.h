#pragma once

#include "platform/URL.h"
#include "platform/Workspace.h"

namespace qbsp::appkit {

/// Launches the application at that URL and waits for nothing. An application that runs from there already is
/// the one that is answered.
[[nodiscard]] platform::LaunchResult launchApplication(const platform::URL& url,
                                                       platform::LaunchOptions options);

} // namespace qbsp::appkit
