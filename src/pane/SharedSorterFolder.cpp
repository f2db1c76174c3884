#include "pane/SharedSorterFolder.h"

#include "settings/SorterStores.h"

namespace qbsp {

std::optional<platform::URL> sharedSorterFolder(platform::FileManager& files, platform::Log& log) {
    const auto container = files.containerURLForSecurityApplicationGroupIdentifier(sorterGroup);
    if (!container)
        return std::nullopt;
    const auto folder = container->appendingPathComponent(sharedSorterFolderName);
    // Anything that lies there counts, even a plain file: a write below it then fails, as it does without a
    // folder.
    if (files.fileExistsAtPath(folder.path()))
        return folder;
    const auto error = files.createDirectoryAtURL(folder, platform::IntermediateDirectories::create);
    // The folder is returned all the same: a write into it then reports that it failed.
    if (error)
        log.log("ERROR: " + *error);
    return folder;
}

} // namespace qbsp
