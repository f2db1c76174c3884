#include "simulated/SimulatedFiles.h"

#include "simulated/Json.h"

namespace qbsp::simulated {

std::optional<platform::URL>
SimulatedFileManager::containerURLForSecurityApplicationGroupIdentifier(platform::ApplicationGroup group) {
    const auto path = transcript_.fails() ? std::nullopt : world_.container;
    transcript_.record("NSFileManager containerURLForSecurityApplicationGroupIdentifier:",
                       {jsonText(group.text)}, jsonTextOrNull(path));
    return path ? std::optional(platform::URL::fileURLWithPath(*path)) : std::nullopt;
}

bool SimulatedFileManager::fileExistsAtPath(const std::string& path) const {
    const bool exists = !transcript_.fails() && world_.disk.exists(path);
    transcript_.record("NSFileManager fileExistsAtPath:", {jsonText(path)}, json(exists));
    return exists;
}

std::optional<std::string>
SimulatedFileManager::createDirectoryAtURL(const platform::URL& url,
                                           platform::IntermediateDirectories intermediates) {
    const bool failed = transcript_.fails();
    auto error = failed ? std::optional<std::string>("The folder could not be made.") : world_.folderError;
    if (!error)
        world_.disk.makeFolder(url.path());
    transcript_.record(
        "NSFileManager createDirectoryAtURL:withIntermediateDirectories:attributes:error:",
        {jsonText(url.path()), json(intermediates == platform::IntermediateDirectories::create), "null"},
        jsonTextOrNull(error));
    return error;
}

std::optional<platform::Dictionary>
SimulatedPropertyLists::dictionaryWithContentsOfFile(const std::optional<std::string>& path) const {
    const bool failed = transcript_.fails();
    auto contents = path && !failed ? world_.disk.propertyList(*path) : std::nullopt;
    transcript_.record("NSDictionary dictionaryWithContentsOfFile:", {jsonTextOrNull(path)},
                       contents ? json(*contents) : "null");
    return contents;
}

bool SimulatedPropertyLists::writeToURL(const platform::Dictionary& dictionary,
                                        const std::optional<platform::URL>& url,
                                        platform::Atomically atomically) {
    const bool failed = transcript_.fails();
    const bool written = url && !failed && world_.writes;
    if (written)
        world_.disk.putPropertyList(url->path(), dictionary);
    transcript_.record("NSDictionary writeToURL:atomically:",
                       {json(dictionary), url ? jsonText(url->path()) : "null",
                        json(atomically == platform::Atomically::yes)},
                       json(written));
    return written;
}

} // namespace qbsp::simulated
