#include "applications/Bundle.h"

#include "files/Reading.h"
#include "propertylists/PropertyList.h"

#include <algorithm>
#include <array>
#include <system_error>
#include <unistd.h>
#include <utility>

namespace applications {

namespace fs = std::filesystem;
namespace platform = qbsp::platform;
namespace propertylists = qbsp::propertylists;

namespace {

/// The first description that is there, whether or not it can be read.
files::Reading descriptionOf(const fs::path& bundle) {
    constexpr std::array places{"Resources/Info-gnustep.plist", "Info-gnustep.plist", "Resources/Info.plist",
                                "Info.plist"};
    for (const char* place : places) {
        files::Reading reading = files::readWhole(bundle / place, largestDescription);
        if (reading.outcome != files::Reading::Outcome::absent)
            return reading;
    }
    return {};
}

/// Empty when the bundle describes itself by no dictionary.
platform::Dictionary entriesOf(const fs::path& bundle) {
    const auto parsed = propertylists::parsedPropertyList(descriptionOf(bundle).contents);
    const auto* value = std::get_if<platform::Value>(&parsed);
    const auto* entries = value == nullptr ? nullptr : value->as<platform::Dictionary>();
    return entries == nullptr ? platform::Dictionary() : *entries;
}

std::string textOf(const platform::Dictionary& entries, const std::string& name) {
    return platform::stringEntry(entries, name).value_or("");
}

// What a bundle names outside itself is not its own, and may be anything that can be executed.
bool leavesItsFolder(const fs::path& name) {
    return name.is_absolute() || std::ranges::find(name, "..") != name.end();
}

fs::path executableIn(const fs::path& bundle, const platform::Dictionary& entries) {
    const std::string own = textOf(entries, "NSExecutable");
    const fs::path name = own.empty() ? textOf(entries, "CFBundleExecutable") : own;
    return name.empty() || leavesItsFolder(name) ? fs::path() : bundle / name;
}

} // namespace

std::optional<Bundle> bundleAt(const fs::path& path) {
    std::error_code failure;
    if (!fs::is_directory(path, failure))
        return std::nullopt;
    const platform::Dictionary entries = entriesOf(path);
    return Bundle{textOf(entries, "CFBundleIdentifier"), executableIn(path, entries)};
}

bool canBeExecuted(const fs::path& file) {
    std::error_code failure;
    return fs::is_regular_file(file, failure) && access(file.c_str(), X_OK) == 0;
}

} // namespace applications
