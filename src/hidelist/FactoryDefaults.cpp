#include "hidelist/FactoryDefaults.h"

#include "platform/URL.h"
#include "settings/SorterStores.h"

namespace qbsp {

namespace {

std::optional<std::string> factoryDefaultsPath(const std::optional<std::string>& sorterPath) {
    if (!sorterPath)
        return std::nullopt;
    return platform::appendingPathComponent(*sorterPath, "Contents/Resources/FactoryDefaults.plist");
}

} // namespace

platform::Value factoryHideFlags(const std::optional<std::string>& sorterPath,
                                 const platform::PropertyLists& propertyLists) {
    const auto factory = propertyLists.dictionaryWithContentsOfFile(factoryDefaultsPath(sorterPath));
    if (!factory)
        return {};
    return platform::entry(*factory, std::string(UserSpecifiedFullScreenApplications.text));
}

} // namespace qbsp
