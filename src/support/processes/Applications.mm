#include "processes/Applications.h"

#include "objc/GSTry.h"
#include "processes/Session.h"

#import <Foundation/Foundation.h>

#include <filesystem>
#include <optional>
#include <system_error>
#include <tuple>

namespace processes {

namespace {

NSString* text(const std::string& utf8) {
    return [NSString stringWithUTF8String:utf8.c_str()];
}

std::string utf8(NSString* text) {
    return text == nil ? "" : [text UTF8String];
}

NSBundle* bundleAt(const std::string& path) {
    BOOL isFolder = NO;
    [[NSFileManager defaultManager] fileExistsAtPath:text(path) isDirectory:&isFolder];
    return isFolder ? [NSBundle bundleWithPath:text(path)] : nil;
}

/// The bundle whose executable the process executes, by the place of that file; empty when it is no
/// application.
std::string bundleOf(const Process& process) {
    const std::filesystem::path executable = executableOf(process);
    const auto bundle = executable.parent_path();
    return bundle.extension() == ".app" && sharesSession(process) ? bundle.string() : std::string();
}

// A tool that lies beside an application's executable is not the application.
bool executesMainExecutable(const Process& process, NSBundle* bundle) {
    const std::filesystem::path executable = utf8([bundle executablePath]);
    return executable.filename() == std::filesystem::path(executableOf(process)).filename();
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
    const auto process = failure == nil ? processOfNumber([task processIdentifier]) : std::nullopt;
    if (process)
        return *process;
    return Reason(executable + " could not be executed" +
                  (failure == nil ? "." : ": " + utf8([failure reason])));
}

} // namespace

std::string identifierOfBundle(const std::string& path) {
    return utf8([bundleAt(path) bundleIdentifier]);
}

std::string executableOfBundle(const std::string& path) {
    NSString* executable = [bundleAt(path) executablePath];
    const bool canBeExecuted = [[NSFileManager defaultManager] isExecutableFileAtPath:executable];
    return canBeExecuted ? utf8(executable) : std::string();
}

std::vector<Application> runningApplications() {
    std::vector<Application> applications;
    for (const Process& process : processesOfUser()) {
        const std::string path = bundleOf(process);
        NSBundle* bundle = path.empty() ? nil : bundleAt(path);
        if ([bundle bundleIdentifier] != nil && executesMainExecutable(process, bundle))
            applications.push_back({process, path, utf8([bundle bundleIdentifier])});
    }
    return applications;
}

std::vector<Application> runningApplications(const std::string& identifier) {
    std::vector<Application> applications = runningApplications();
    std::erase_if(applications, [&](const Application& each) { return each.identifier != identifier; });
    return applications;
}

std::variant<Process, Reason> launchApplication(const std::string& bundle) {
    if (bundleAt(bundle) == nil)
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
        // One that has just gone needs not be asked.
        std::ignore = askToQuit(application.process);
}

} // namespace processes
