#import "on_appkit/ContractUser.h"

namespace {

template <class Visit>
void visitViews(NSView* view, Visit visit) {
    visit(view);
    for (NSUInteger index = 0; index < [[view subviews] count]; ++index)
        visitViews([[view subviews] objectAtIndex:index], visit);
}

/// The view of that class in the window that the predicate takes; nil when there is none.
template <class Takes>
id find(NSWindow* window, Class kind, Takes takes) {
    id found = nil;
    visitViews([window contentView], [&](NSView* view) {
        if (found == nil && [view isKindOfClass:kind] && ![view isHidden] && takes(view))
            found = view;
    });
    return found;
}

std::string text(NSString* string) {
    return string == nil ? "" : [string UTF8String];
}

NSButton* buttonTitled(NSWindow* window, const std::string& title) {
    return find(window, [NSButton class], [&](id view) { return text([view title]) == title; });
}

NSButton* buttonForReturn(NSWindow* window) {
    return find(window, [NSButton class], [](id view) { return [[view keyEquivalent] isEqual:@"\r"]; });
}

std::vector<std::string> textsOf(NSWindow* window) {
    std::vector<std::string> texts;
    visitViews([window contentView], [&](id view) {
        if ([view isKindOfClass:[NSButton class]])
            texts.push_back(text([view title]));
        else if ([view isKindOfClass:[NSTextField class]])
            texts.push_back(text([view stringValue]));
    });
    return texts;
}

/// Chooses the entry in the last column of the panel's browser. False while it is not listed.
bool choose(NSWindow* panel, const std::string& name) {
    NSBrowser* browser = find(panel, [NSBrowser class], [](id) { return true; });
    NSMatrix* entries = [browser matrixInColumn:[browser lastColumn]];
    for (NSInteger row = 0; row < [entries numberOfRows]; ++row) {
        if (text([[entries cellAtRow:row column:0] stringValue]) != name)
            continue;
        [entries selectCellAtRow:row column:0];
        [entries sendAction];
        return true;
    }
    return false;
}

// A modal loop notices that it should end only at the next event, and a timer brings one.
void wakeModalLoop(NSWindow* window) {
    [[NSRunLoop currentRunLoop] addTimer:[NSTimer timerWithTimeInterval:0.01
                                                                 target:window
                                                               selector:@selector(displayIfNeeded)
                                                               userInfo:nil
                                                                repeats:NO]
                                 forMode:NSModalPanelRunLoopMode];
    [NSApp postEvent:[NSEvent otherEventWithType:NSApplicationDefined
                                        location:NSZeroPoint
                                   modifierFlags:0
                                       timestamp:0
                                    windowNumber:[window windowNumber]
                                         context:nil
                                         subtype:0
                                           data1:0
                                           data2:0]
             atStart:NO];
}

} // namespace

@implementation ContractUser

- (void)watch {
    timer = [NSTimer timerWithTimeInterval:0.05
                                    target:self
                                  selector:@selector(look)
                                  userInfo:nil
                                   repeats:YES];
    [[NSRunLoop currentRunLoop] addTimer:timer forMode:NSModalPanelRunLoopMode];
}

- (void)leave {
    [timer invalidate];
    timer = nil;
}

- (void)look {
    NSWindow* const window = [NSApp modalWindow];
    if (window == nil || window == answered || ![window isVisible])
        return;
    if (choice && !choose(window, *choice))
        return;
    texts = textsOf(window);
    defaultButton = text([buttonForReturn(window) title]);
    // The run loop runs during a click, and calls this method again.
    answered = window;
    [buttonTitled(window, button) performClick:nil];
    wakeModalLoop(window);
}

@end
