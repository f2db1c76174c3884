#pragma once

#import <AppKit/AppKit.h>

namespace qbsp::appkit {

/// Connects the ends of a view's tab order in a window whose host does not: after the last view comes the
/// first view outside that takes keys, then the others outside from top to bottom, then the view's first.
void connectKeyViews(NSView* view, NSView* first, NSView* last);

} // namespace qbsp::appkit
