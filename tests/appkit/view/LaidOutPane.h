#pragma once

#include "PaneWindow.h"

#include <vector>

namespace qbsp::appkit {

/// The pane in its window, with what tests ask of its layout.
class LaidOutPane : public PaneWindow {
protected:
    [[nodiscard]] NSView* form() const;
    [[nodiscard]] NSScrollView* list() const;

    /// Fails for each part of the form that does not show all of its text, or lies over another.
    void expectNothingCutOrCovered() const;

private:
    [[nodiscard]] std::vector<NSView*> shownParts() const;
    void expectWhole(NSView* part) const;
};

} // namespace qbsp::appkit
