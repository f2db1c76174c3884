#include "pane/QBSPPreferencePane.h"
#include "platform/Bundles.h"
#include "platform/Host.h"
#include "sorter/SorterIdentity.h"

namespace qbsp {

void QBSPPreferencePane::locateSorter() {
    isSorterProApp_ = services_.host.isPro();
    // Both editions embed the same Sorter, so the edition plays no part in the sandboxed build.
    if (services_.host.isSandboxed())
        setSorterAppURL(embeddedSorterURL());
    else
        setSorterAppURL(sorterURLBesideRegistrar());
}

std::optional<platform::URL> QBSPPreferencePane::sorterURLBesideRegistrar() const {
    const auto path = sorterPathBesideRegistrar();
    if (!path)
        return std::nullopt;
    return platform::URL::fileURLWithPath(*path);
}

platform::URL QBSPPreferencePane::embeddedSorterURL() const {
    return services_.bundles.mainBundleURL().appendingPathComponent(SorterLoginItemPath);
}

std::optional<std::string> QBSPPreferencePane::sorterPathBesideRegistrar() const {
    // Without a registrar the platform is asked about no class, and its result is taken as it is.
    const auto executable = services_.bundles.executablePathOfBundleForClassOf(loginItemRegistrar());
    if (!executable)
        return std::nullopt;
    const std::string folder = platform::deletingLastPathComponent(*executable);
    return platform::appendingPathExtension(platform::appendingPathComponent(folder, editionSorter().appName),
                                            "app");
}

} // namespace qbsp
