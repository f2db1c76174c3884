#import "appkit/view/QBSPFormView.h"

#import "appkit/drawing/FocusRing.h"
#import "appkit/view/Alignment.h"

@interface QBSPFormView ()
- (NSView*)focusedControl;
- (NSRect)rectOfFocus;
- (void)followFocus:(NSNotification*)notification;
- (void)moveRingTo:(NSRect)rect;
@end

@implementation QBSPFormView

- (void)dealloc {
    [[NSNotificationCenter defaultCenter] removeObserver:self];
    [super dealloc];
}

- (BOOL)isFlipped {
    return YES;
}

#pragma mark - The focus

- (void)viewWillMoveToWindow:(NSWindow*)window {
    NSNotificationCenter* center = [NSNotificationCenter defaultCenter];
    [center removeObserver:self];
    if (window != nil)
        // Sent after each event; nothing is sent when the first responder changes.
        [center addObserver:self
                   selector:@selector(followFocus:)
                       name:NSWindowDidUpdateNotification
                     object:window];
    [super viewWillMoveToWindow:window];
}

/// A table's is its scroll view, whose edges are seen.
- (NSView*)focusedControl {
    id responder = [[self window] firstResponder];
    if (![[self window] isKeyWindow] || ![responder isKindOfClass:[NSView class]] ||
        ![responder isDescendantOf:self] || responder == self)
        return nil;
    return [responder isKindOfClass:[NSTableView class]] ? [responder enclosingScrollView] : responder;
}

- (NSRect)rectOfFocus {
    NSView* control = [self focusedControl];
    return control == nil ? NSZeroRect : qbsp::appkit::visiblePart(control);
}

- (void)followFocus:(NSNotification*)notification {
    [self moveRingTo:[self rectOfFocus]];
    NSView* control = [self focusedControl];
    if (control != followed && control != nil)
        [self scrollRectToVisible:qbsp::appkit::focusRingRect(focused)];
    followed = control;
}

- (void)moveRingTo:(NSRect)rect {
    if (NSEqualRects(rect, focused))
        return;
    [self setNeedsDisplayInRect:qbsp::appkit::focusRingRect(focused)];
    focused = rect;
    [self setNeedsDisplayInRect:qbsp::appkit::focusRingRect(focused)];
}

- (NSRect)focusedRect {
    return focused;
}

- (void)drawRect:(NSRect)rect {
    // The focus may have moved since the last event.
    const NSRect now = [self rectOfFocus];
    if (!NSIsEmptyRect(now))
        qbsp::appkit::drawFocusRing(now);
}

@end
