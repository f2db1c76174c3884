#pragma once

#include "simulated/PaneSession.h"
#include "simulated/SimulatedPlatform.h"

#include <map>
#include <string>
#include <tuple>
#include <vector>

namespace qbsp {

/// The identifiers of the Sorters: the two editions' and the embedded one.
inline constexpr const char* full = "com.quarrybook.Sorter";
inline constexpr const char* solo = "com.quarrybook.SoloSorter";
inline constexpr const char* embedded = "Z3K8WQ4N7P.quarry2.QuarrybookSorter";

inline constexpr const char* hideListKey = "UserSpecifiedFullScreenApplications";

/// What transcript() returns when no platform call was made.
inline constexpr const char* nothing = "\n";

/// A simulated platform with a host on it, and short paths: the registrar's code, and the Sorters beside it,
/// lie in /PlugIn, the host in /Quarrybook.app.
class Stage {
public:
    Stage() {
        world.mainBundle = "/Quarrybook.app";
        world.registrarExecutable = "/PlugIn/SorterPlugin";
        world.noClassExecutable = "/Host/Quarrybook";
        world.container = "/Group";
    }

    [[nodiscard]] QBSPPreferencePane& pane() const { return session.pane(); }

    [[nodiscard]] const PaneControls& controls() const { return pane().controls; }

    /// Makes a pane. The calls that this makes are forgotten.
    void createPane() {
        std::ignore = session.create();
        forget();
    }

    /// Makes a pane with a view. The calls that this makes are forgotten.
    void loadView() {
        createPane();
        session.loadView();
        forget();
    }

    /// Makes a pane with a view and shows it. The calls that this makes are forgotten.
    void select() {
        loadView();
        pane().willSelect();
        forget();
    }

    /// Leaves the pane. The calls that this makes are forgotten.
    void unselect() {
        pane().willUnselect();
        forget();
    }

    void storeHideList(const char* sorter, const platform::Value& hideFlags) {
        world.domains[sorter].put(hideListKey, hideFlags);
    }

    [[nodiscard]] platform::Value hideList(const char* sorter) {
        return world.domains[sorter].value(hideListKey);
    }

    /// The user sets or clears the tick of that row.
    void editRow(std::int32_t row, bool hide) {
        pane().tableViewSetObjectValueForTableColumnRow(
            *controls().hideAppsTable, std::int32_t{hide},
            controls().hideAppsTable->tableColumnWithIdentifier(platform::ColumnIdentifier{"2"}), row);
        forget();
    }

    /// Lets the clock run on by so many seconds.
    void wait(const char* seconds) { platform.runLoop.runFor(*scenario::Decimal::parse(seconds)); }

    /// What every connected control shows, by its field.
    [[nodiscard]] std::map<std::string, platform::Dictionary> controlContents() const {
        const auto contents = session.view()->contents();
        return {contents.begin(), contents.end()};
    }

    /// What the control of that field shows under that name.
    [[nodiscard]] platform::Value shown(const std::string& field, const std::string& name) const {
        return platform::entry(controlContents().at(field), name);
    }

    /// The platform calls since they were last read or forgotten.
    [[nodiscard]] std::vector<std::string> operations() { return platform.transcript.take(); }

    void forget() { std::ignore = operations(); }

    /// The same as one text: an empty line, then a line for each call.
    [[nodiscard]] std::string transcript() {
        std::string text = "\n";
        for (const std::string& line : operations())
            text += line + "\n";
        return text;
    }

    simulated::SimulatedPlatform platform;
    simulated::World& world = platform.world;
    simulated::PaneSession session{platform};
};

} // namespace qbsp
