#pragma once

#include "processes/Application.h"
#include "processes/Process.h"

#include <string>
#include <variant>
#include <vector>

namespace applications {

/// The applications that are running in this session: live processes that execute the main executable of a
/// bundle with an identifier.
[[nodiscard]] std::vector<processes::Application> runningApplications();

/// Those with that bundle identifier.
[[nodiscard]] std::vector<processes::Application> runningApplications(const std::string& identifier);

/// The identifier of the bundle at that path; empty when there is no bundle, or none with an identifier.
[[nodiscard]] std::string identifierOfBundle(const std::string& path);

/// The executable of the bundle at that path; empty when it has none that can be executed.
[[nodiscard]] std::string executableOfBundle(const std::string& path);

/// Why something could not be done, in a sentence.
using Reason = std::string;

/// Starts the application whose bundle is at that path, without waiting for it. If it is already running from
/// there, returns that process. Returns the reason when it cannot be started.
[[nodiscard]] std::variant<processes::Process, Reason> launchApplication(const std::string& bundle);

/// Asks the applications with that bundle identifier to quit, without waiting for them.
void askApplicationsToQuit(const std::string& identifier);

} // namespace applications
