#include "appkit/services/Applications.h"

#include "appkit/bridge/Strings.h"
#include "appkit/stores/gnustep/JobRecord.h"
#include "applications/Applications.h"
#include "xdg/Autostart.h"
#include "xdg/UserFolders.h"

#import <Foundation/Foundation.h>

#include <filesystem>
#include <string>
#include <system_error>
#include <tuple>

namespace qbsp::appkit {

namespace {

JobRecord jobRecord() {
    return JobRecord(xdg::dataHome() / "com.quarrybook.SorterPane" / "LoginItems.plist");
}

platform::URL embeddedApplication(const std::string& identifier) {
    const auto mainBundle = platform::URL::fileURLWithPath(utf8([[NSBundle mainBundle] bundlePath]));
    return mainBundle.appendingPathComponent(platform::loginItemsFolder)
        .appendingPathComponent(identifier + ".app");
}

/// Tells of an entry that could not be changed; true when it was.
bool changed(const std::filesystem::path& entry, std::error_code failure) {
    if (failure)
        NSLog(@"ERROR: %@: could not be written: %@; it is left as it is", nsString(entry.string()),
              nsString(failure.message()));
    return !failure;
}

bool add(const std::string& identifier, const std::string& executable) {
    const auto autostart = xdg::Autostart::ofUser();
    return changed(autostart.file(identifier),
                   autostart.add(identifier, {platform::lastPathComponent(executable), executable}));
}

bool remove(const std::string& identifier) {
    const auto autostart = xdg::Autostart::ofUser();
    return changed(autostart.file(identifier), autostart.remove(identifier));
}

/// Makes it a login item, and its job a recorded one: both or neither.
bool enlist(const std::string& identifier, const std::string& executable) {
    if (!add(identifier, executable))
        return false;
    const bool recorded = jobRecord().add(identifier);
    if (!recorded)
        // It must not start at login while no job is recorded for it; when even that fails, the entry stays.
        std::ignore = remove(identifier);
    return recorded;
}

void switchOn(const std::string& identifier) {
    const std::string bundle = embeddedApplication(identifier).path();
    const std::string executable = applications::executableOfBundle(bundle);
    if (executable.empty() || !enlist(identifier, executable))
        return;
    if (applications::runningApplications(identifier).empty())
        // Whether it started shows in what runs afterwards.
        std::ignore = applications::launchApplication(bundle);
}

void switchOff(const std::string& identifier) {
    // What cannot be taken back goes on being listed; the application is stopped nevertheless.
    std::ignore = remove(identifier);
    std::ignore = jobRecord().remove(identifier);
    applications::askApplicationsToQuit(identifier);
}

} // namespace

void AppKitServiceManagement::loginItemSetEnabled(platform::BundleIdentifier identifier, bool enabled) {
    const std::string name(identifier.text);
    enabled ? switchOn(name) : switchOff(name);
}

// A job whose login item the user took away, or switched off, is no longer one.
std::optional<std::vector<platform::Dictionary>>
AppKitServiceManagement::copyAllJobDictionaries(platform::JobDomain) const {
    const auto autostart = xdg::Autostart::ofUser();
    auto jobs = jobRecord().jobs();
    std::erase_if(jobs, [&](const auto& job) { return !autostart.program(labelOf(job)); });
    return jobs;
}

} // namespace qbsp::appkit
