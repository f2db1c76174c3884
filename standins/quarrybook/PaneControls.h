#pragma once

#import <AppKit/AppKit.h>

#include <string>
#include <vector>

namespace quarrybook {

/// The identifiers of the hide table's columns.
inline NSString* const nameColumn = @"1";
inline NSString* const flagColumn = @"2";

/// The fields of the controls that have a command of their own.
namespace field {
inline constexpr const char* clipHotKeyRecorder = "clipHotKeyRecorder";
inline constexpr const char* noteHotKeyRecorder = "noteHotKeyRecorder";
inline constexpr const char* toggleLaunchButton = "toggleLaunchButton";
inline constexpr const char* resetFullscreenSettingsButton = "resetFullscreenSettingsButton";
inline constexpr const char* hideAppsTable = "hideAppsTable";
inline constexpr const char* addButton = "addButton";
} // namespace field

/// The controls of the pane in the window, looked up by name in the pane's main view.
class PaneControls {
public:
    explicit PaneControls(NSView* mainView) : mainView_(mainView) {}

    /// The names of the pane's controls, in the order of its fields, as its main view lists them.
    [[nodiscard]] std::vector<std::string> names() const;

    /// Nil when the view does not have it.
    [[nodiscard]] id named(const std::string& name) const;

    [[nodiscard]] NSTableView* table() const { return named(field::hideAppsTable); }

    /// What the control shows, as JSON.
    [[nodiscard]] std::string description(const std::string& name) const;

private:
    NSView* mainView_;
};

/// What the cell shows, as JSON.
[[nodiscard]] std::string cellValue(NSTableView* table, NSTableColumn* column, NSInteger row);

} // namespace quarrybook
