#include "simulated/StateText.h"

#include "simulated/Json.h"

namespace qbsp::simulated {

namespace {

platform::Value rows(const HideList& list) {
    if (!list.exists())
        return {};
    platform::Array all;
    for (const auto& record : list.records())
        all.emplace_back(platform::Array{std::string(record.appName), record.hideApp});
    return all;
}

} // namespace

void writeState(PaneSession& session) {
    const QBSPPreferencePane& pane = session.pane();
    Transcript& transcript = session.platform().transcript;
    const auto note = [&](const std::string& name, const std::string& value) {
        transcript.note(name + ": " + value);
    };
    const auto url = pane.sorterAppURL();
    note("sorterAppURL", url ? jsonText(url->path()) : "null");
    note("loginItemRegistrar", json(pane.loginItemRegistrar() != nullptr));
    note("shouldRestartSorter", json(pane.shouldRestartSorter()));
    note("deleteFullScreenSettingsInSorter", json(pane.deleteFullScreenSettingsInSorter()));
    note("isSorterProApp", json(pane.isSorterProApp()));
    note("tableArray", json(rows(pane.tableArray())));
    note("hideAppsUpdated", json(pane.hideAppsUpdated()));
    note("sandboxedSorterApp", json(pane.hasSandboxedSorterApp()));
    if (!session.hasView())
        return;
    for (const auto& [field, contents] : session.view()->contents())
        note(field, json(contents));
}

void writeStores(SimulatedPlatform& platform) {
    platform.transcript.note("defaults: " + json(platform.world.defaults.contents()));
    for (const auto& [identifier, store] : platform.world.domains)
        if (!store.contents().empty())
            platform.transcript.note("domain " + identifier + ": " + json(store.contents()));
    for (const auto& [path, contents] : platform.world.disk.propertyLists())
        platform.transcript.note("file " + path + ": " + json(contents));
}

} // namespace qbsp::simulated
