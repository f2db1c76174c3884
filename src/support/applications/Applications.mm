#include "applications/Applications.h"

#include "applications/Bundle.h"
#include "objc/GSTry.h"
#include "processes/Session.h"

#import <Foundation/Foundation.h>

#include <filesystem>
#include <optional>
#include <system_error>
#include <tuple>

namespace applications {

using processes::Application;
using processes::Process;

namespace {

NSString* text(const std::string& utf8) {
    return [NSString stringWithUTF8String:utf8.c_str()];
}

std::string utf8(NSString* text) {
    return text == nil ? "" : [text UTF8String];
}

bool isInBundle(const std::filesystem::path& executable) {
    return executable.parent_path().extension() == ".app";
}

// A tool that lies beside an application's executable is not the application.
bool isMainExecutable(const std::filesystem::path& executable, const Bundle& bundle) {
    return executable.filename() == bundle.executable.filename();
}

/// None when the process executes no application that has an identifier.
std::optional<Application> applicationOf(const Process& process) {
    const std::filesystem::path executable = processes::executableOf(process.pid);
    const std::string path = executable.parent_path();
    const auto bundle = isInBundle(executable) ? bundleAt(path) : std::nullopt;
    if (!bundle || bundle->identifier.empty() || !isMainExecutable(executable, *bundle))
        return std::nullopt;
    return Application{process, path, bundle->identifier};
}

std::optional<Process> processFrom(const std::string& bundle) {
    std::error_code failure;
    const std::string realPath = std::filesystem::canonical(bundle, failure);
    for (const Application& application : runningApplications())
        if (application.bundle == realPath)
            return application.process;
    return std::nullopt;
}

std::variant<Process, Reason> launchExecutable(const std::string& executable) {
    NSTask* task = nil;
    NSException* failure = objc::tryObjC(
        [&] { task = [NSTask launchedTaskWithLaunchPath:text(executable) arguments:[NSArray array]]; });
    const auto process = failure == nil ? processes::processOfNumber([task processIdentifier]) : std::nullopt;
    if (process)
        return *process;
    return Reason(executable + " could not be executed" +
                  (failure == nil ? "." : ": " + utf8([failure reason])));
}

} // namespace

std::string identifierOfBundle(const std::string& path) {
    const auto bundle = bundleAt(path);
    return bundle ? bundle->identifier : "";
}

std::string executableOfBundle(const std::string& path) {
    const auto bundle = bundleAt(path);
    return bundle && canBeExecuted(bundle->executable) ? bundle->executable.string() : "";
}

std::vector<Application> runningApplications() {
    std::vector<Application> applications;
    for (const Process& process : processes::processesOfUser(isInBundle))
        if (const auto application = applicationOf(process); application && processes::sharesSession(process))
            applications.push_back(*application);
    return applications;
}

std::vector<Application> runningApplications(const std::string& identifier) {
    std::vector<Application> applications = runningApplications();
    std::erase_if(applications, [&](const Application& each) { return each.identifier != identifier; });
    return applications;
}

std::variant<Process, Reason> launchApplication(const std::string& bundle) {
    if (!bundleAt(bundle))
        return Reason("There is no application at " + bundle + ".");
    const std::string executable = executableOfBundle(bundle);
    if (executable.empty())
        return Reason("The application at " + bundle + " has no executable.");
    if (const auto running = processFrom(bundle))
        return *running;
    return launchExecutable(executable);
}

void askApplicationsToQuit(const std::string& identifier) {
    for (const Application& application : runningApplications(identifier))
        // An application that has just ended need not be asked.
        std::ignore = processes::askToQuit(application.process);
}

} // namespace applications
