#include "pane/SharedSorterFolder.h"

#include "settings/SorterStores.h"

namespace qbsp {

std::optional<platform::URL> sharedSorterFolder(platform::FileManager& files, platform::Log& log) {
    const auto container = files.containerURLForSecurityApplicationGroupIdentifier(sorterGroup);
    if (!container)
        return std::nullopt;
    const auto folder = container->appendingPathComponent(sharedSorterFolderName);
    // Whatever lies there counts, also a plain file: a write below it then fails, as one without a folder
    // does.
    if (files.fileExistsAtPath(folder.path()))
        return folder;
    const auto error = files.createDirectoryAtURL(folder, platform::IntermediateDirectories::create);
    // The folder is answered all the same: whoever writes into it learns that nothing could be written.
    if (error)
        log.log("ERROR: " + *error);
    return folder;
}

} // namespace qbsp
