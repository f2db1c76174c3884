#pragma once

#include "LoadedPane.h"

/// A pane in a window.
class ShownPane : public LoadedPane {
protected:
    ShownPane();
    ~ShownPane() override;

    /// Shows the pane, drawn.
    void select() const;

    /// Sets the tick of that row, as the user does.
    void tick(NSInteger row, bool hide) const;

    void unselect() const { [pane willUnselect]; }

private:
    NSWindow* const window_;
};
