#import "appkit/view/KeyViews.h"

#include <vector>

namespace qbsp::appkit {

namespace {

/// Views within views that take keys are one control, such as the cells' views of a table.
void addKeyViews(NSView* view, NSView* left, std::vector<NSView*>& found) {
    if (view == left || [view isHidden])
        return;
    if ([view acceptsFirstResponder]) {
        found.push_back(view);
        return;
    }
    NSArray* subviews = [view subviews];
    for (NSUInteger index = 0; index < [subviews count]; ++index)
        addKeyViews([subviews objectAtIndex:index], left, found);
}

} // namespace

void connectKeyViews(NSView* view, NSView* first, NSView* last) {
    std::vector<NSView*> outside;
    addKeyViews([[view window] contentView], view, outside);
    NSView* previous = last;
    for (NSView* each : outside) {
        [previous setNextKeyView:each];
        previous = each;
    }
    [previous setNextKeyView:first];
}

} // namespace qbsp::appkit
