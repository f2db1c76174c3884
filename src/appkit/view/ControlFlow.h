#pragma once

#import <AppKit/AppKit.h>

#include <vector>

namespace qbsp::appkit {

/// The control's preferred width, as far as it is seen.
[[nodiscard]] CGFloat naturalWidth(NSView* control);

/// True when the control takes up space: it is not hidden, and no text field without a text.
[[nodiscard]] bool takesSpace(NSView* control);

/// Lays out controls side by side, each sized to its contents, on as many lines as fit them into a width.
/// Each is in the middle of its line, so that texts of one size share a baseline. To be used at once: the
/// views are not retained.
class ControlFlow {
public:
    ControlFlow(const std::vector<NSView*>& controls, CGFloat width);

    /// The total height of all lines.
    [[nodiscard]] CGFloat height() const { return lineTop_ + lineHeight_; }

    [[nodiscard]] CGFloat firstLineHeight() const;

    /// Sets the controls' frames, with the first line's top left corner at that point of a flipped view.
    void place(NSPoint origin) const;

private:
    struct Place {
        NSView* control;
        NSRect rect;
    };

    void append(NSView* control);
    void endLine();

    CGFloat width_;
    CGFloat lineTop_ = 0;
    CGFloat lineHeight_ = 0;
    CGFloat x_ = 0;
    std::size_t lineStart_ = 0;
    std::vector<Place> places_;
};

} // namespace qbsp::appkit
