#pragma once

namespace qbsp::platform {

/// A window of the host; the pane only passes it on.
class Window {
public:
    virtual ~Window() = default;
};

/// What the pane inherits from the platform's preference pane.
class PreferencePaneBase {
public:
    virtual ~PreferencePaneBase() = default;

    /// Creates the platform's side of the pane for its bundle. False when the platform refuses.
    [[nodiscard]] virtual bool initWithBundle() = 0;

    /// The inherited part of these three messages; the pane sends each as the last step of its own.
    virtual void mainViewDidLoad() = 0;
    virtual void willSelect() = 0;
    virtual void willUnselect() = 0;

    /// The window that shows the pane's main view; null when none does.
    [[nodiscard]] virtual Window* mainViewWindow() = 0;
};

} // namespace qbsp::platform
