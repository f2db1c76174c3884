#pragma once

#import <AppKit/AppKit.h>

#include <string>
#include <vector>

namespace quarrybook {

/// The controls of the pane in the window. The pane's main view answers each by its name.
class PaneControls {
  public:
    explicit PaneControls(NSView* mainView) : mainView_(mainView) {}

    /// Names of all controls, in the order in which a state is told.
    [[nodiscard]] static const std::vector<std::string>& names();

    /// Nil when the view does not have it.
    [[nodiscard]] id named(const std::string& name) const;

    [[nodiscard]] NSTableView* table() const { return named("hideAppsTable"); }

    /// What the control shows, as JSON.
    [[nodiscard]] std::string description(const std::string& name) const;

  private:
    [[nodiscard]] static std::string describeTable(NSTableView* table);

    NSView* mainView_;
};

/// What the cell shows, as JSON.
[[nodiscard]] std::string cellValue(NSTableView* table, NSTableColumn* column, NSInteger row);

} // namespace quarrybook
