#include "hidelist/ApplicationName.h"

namespace qbsp {

namespace {

/// What Java applications run in, all of them under this name.
constexpr std::string_view javaLauncher = "JavaApplicationStub";

std::string propertyListPath(const std::string& bundle) {
    return platform::appendingPathComponent(platform::appendingPathComponent(bundle, "Contents"),
                                            "Info.plist");
}

} // namespace

std::optional<std::string> applicationName(const platform::URL& bundle, const platform::FileManager& files,
                                           const platform::PropertyLists& propertyLists,
                                           const platform::StringComparison& strings) {
    // The bundle itself is asked for, not its property list: one that is there but says nothing has no name.
    if (!files.fileExistsAtPath(bundle.path()))
        return platform::deletingPathExtension(platform::lastPathComponent(bundle.path()));
    const auto info = propertyLists.dictionaryWithContentsOfFile(propertyListPath(bundle.path()));
    if (!info)
        return std::nullopt;
    auto executable = platform::stringEntry(*info, "CFBundleExecutable");
    if (!executable || strings.equalIgnoringCase(*executable, javaLauncher))
        return platform::stringEntry(*info, "CFBundleName");
    return executable;
}

} // namespace qbsp
