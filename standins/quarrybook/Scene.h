#pragma once

#import "PaneControls.h"
#import "QBSPPreferencesWindow.h"

#include <cstdint>
#include <string>

namespace quarrybook {

/// What the commands of a scenario work on: the preferences window and the pane in it. A lookup throws
/// qbsp::scenario::ScenarioError for anything that is missing or hidden.
class Scene {
public:
    /// Both must outlive the scene.
    Scene(QBSPPreferencesWindow* preferences, QBSPPaneRunner* runner)
        : preferences_(preferences), runner_(runner) {}

    [[nodiscard]] QBSPPreferencesWindow* preferences() const { return preferences_; }

    [[nodiscard]] QBSPPaneRunner* runner() const { return runner_; }

    /// The modal window if there is one, otherwise the preferences window.
    [[nodiscard]] NSWindow* frontWindow() const;

    [[nodiscard]] PaneControls controls() const;

    /// The button in the pane with that field name.
    [[nodiscard]] NSButton* button(const std::string& field) const;

    /// The recorder that a scenario calls clip or note.
    [[nodiscard]] NSView* recorder(const std::string& which) const;

    [[nodiscard]] NSTableColumn* column(const std::string& identifier) const;

    /// The row's index, which the table must have.
    [[nodiscard]] NSInteger row(std::int32_t number) const;

private:
    QBSPPreferencesWindow* preferences_;
    QBSPPaneRunner* runner_;
};

} // namespace quarrybook
