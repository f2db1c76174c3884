#pragma once

#import <AppKit/AppKit.h>

#include <vector>

namespace qbsp::appkit {

/// The width that the control would like to have.
[[nodiscard]] CGFloat naturalWidth(NSView* control);

/// Controls side by side in the size of their contents, on as many lines as it takes to keep within a width.
/// Hidden ones take no room. Used at once: the views are not kept.
class ControlFlow {
  public:
    ControlFlow(const std::vector<NSView*>& controls, CGFloat width);

    /// The height of all lines.
    [[nodiscard]] CGFloat height() const { return lineTop_ + lineHeight_; }

    /// Gives the controls their places, the first one's top left corner at that point of a flipped view.
    void place(NSPoint origin) const;

  private:
    struct Place {
        NSView* control;
        NSRect frame;
    };

    void append(NSView* control);

    CGFloat width_;
    CGFloat lineTop_ = 0;
    CGFloat lineHeight_ = 0;
    CGFloat x_ = 0;
    std::vector<Place> places_;
};

} // namespace qbsp::appkit
