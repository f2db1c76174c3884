#pragma once

#include "processes/Process.h"

#include <string>
#include <variant>
#include <vector>

namespace processes {

/// An application that runs.
struct Application {
    Process process;
    std::string bundle;     ///< the path of its bundle
    std::string identifier; ///< its bundle identifier

    friend bool operator==(const Application&, const Application&) = default;
};

/// The applications that really run in this session: living processes that execute the executable of a bundle
/// with an identifier.
[[nodiscard]] std::vector<Application> runningApplications();

/// Those of that bundle identifier.
[[nodiscard]] std::vector<Application> runningApplications(const std::string& identifier);

/// The identifier of the bundle at that path; empty when there is no bundle, or none with an identifier.
[[nodiscard]] std::string identifierOfBundle(const std::string& path);

/// The executable of the bundle at that path; empty when it has none that can be executed.
[[nodiscard]] std::string executableOfBundle(const std::string& path);

/// Why something could not be done, in a sentence.
using Reason = std::string;

/// Starts the application whose bundle is at that path, and waits for nothing; one that runs from there
/// already is taken instead. Answers why when it cannot be started.
[[nodiscard]] std::variant<Process, Reason> launchApplication(const std::string& bundle);

/// Asks the applications of that bundle identifier to quit, and waits for none.
void askApplicationsToQuit(const std::string& identifier);

} // namespace processes
