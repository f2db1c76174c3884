#pragma once

#import <AppKit/AppKit.h>

#include <vector>

namespace qbsp::appkit {

/// The control's preferred width.
[[nodiscard]] CGFloat naturalWidth(NSView* control);

/// Lays out controls side by side, each sized to its contents, on as many lines as fit them into a width.
/// Hidden controls take no space. To be used at once: the views are not retained.
class ControlFlow {
public:
    ControlFlow(const std::vector<NSView*>& controls, CGFloat width);

    /// The total height of all lines.
    [[nodiscard]] CGFloat height() const { return lineTop_ + lineHeight_; }

    /// Sets the controls' frames, with the first control's top left corner at that point of a flipped view.
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
