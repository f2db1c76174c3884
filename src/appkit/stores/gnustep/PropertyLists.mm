#include "appkit/stores/PropertyLists.h"

#include "appkit/stores/gnustep/Saving.h"

namespace qbsp::appkit {

std::optional<platform::Dictionary>
AppKitPropertyLists::dictionaryWithContentsOfFile(const std::optional<std::string>& path) const {
    return path ? storedLists().read(*path) : std::nullopt;
}

// A file appears whole also when that is not asked for.
bool AppKitPropertyLists::writeToURL(const platform::Dictionary& dictionary,
                                     const std::optional<platform::URL>& url, platform::Atomically) {
    if (!url)
        return false;
    storedLists().replace(url->path(), dictionary);
    saveNow();
    return !storedLists().waits(url->path());
}

} // namespace qbsp::appkit
