#pragma once

#include "PaneListing.h"
#include "appkit/bridge/Retained.h"
#import "appkit/view/QBSPPaneView.h"

#include <functional>
#include <gtest/gtest.h>

namespace qbsp::appkit {

/// The pane's view with its English texts and a list, in a window that has the keyboard.
class PaneWindow : public testing::Test {
protected:
    void SetUp() override;
    void TearDown() override;

    /// The view made anew, as it is when the user's system font has that size.
    void setFontSize(CGFloat size);

    /// A key's text in another language.
    using Translation = std::function<NSString*(NSString* key)>;

    /// Gives the pane those texts. It is not laid out again.
    void setTexts(const Translation& translate);

    void setNames(const std::vector<std::string>& names);

    [[nodiscard]] bool flag(std::size_t row) const { return listing_.get()->flags.at(row); }

    void focus(NSView* view);
    /// The application handles the event as if it came from the keyboard.
    void press(NSString* characters, NSUInteger modifiers = 0);
    void pressTab();

    /// Clicks until that has the effect, twice at most: AppKit loses the first click that it tracks.
    void clickAt(NSView* view, NSPoint point, const std::function<bool()>& effect);

    /// The view that has the focus.
    [[nodiscard]] NSView* focused() const;

    /// Lets the window show what has changed.
    void settle();

    /// What the view shows on the screen, and what it shows when it is drawn anew: both as pixels.
    [[nodiscard]] NSData* shown(NSView* view);
    [[nodiscard]] NSData* drawnAnew(NSView* view);

    [[nodiscard]] const ViewControls& controls() const { return [view controls]; }

    NSWindow* window = nil;
    QBSPPaneView* view = nil;

private:
    void makeView();

    Retained<QBSPPaneView*> view_;
    Retained<PaneListing*> listing_;
};

} // namespace qbsp::appkit
