#include "appkit/services/ApplicationLaunch.h"

#include "applications/Applications.h"
#include "processes/Process.h"

#include <variant>

namespace qbsp::appkit {

namespace {

class LaunchedApplication final : public platform::RunningApplication {
public:
    explicit LaunchedApplication(const processes::Process& process) : process_(process) {}

    bool terminate() override { return processes::askToQuit(process_); }

private:
    processes::Process process_;
};

} // namespace

// None of the options has a counterpart here: an application decides itself whether to become active.
platform::LaunchResult launchApplication(const platform::URL& url, platform::LaunchOptions) {
    const auto launched = applications::launchApplication(url.path());
    if (const auto* reason = std::get_if<applications::Reason>(&launched))
        return {nullptr, *reason};
    return {std::make_shared<LaunchedApplication>(std::get<processes::Process>(launched)), std::nullopt};
}

} // namespace qbsp::appkit
