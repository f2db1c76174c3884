#import "QBSPTab.h"

static const CGFloat width = 28;
static const CGFloat height = 120;
static const CGFloat margin = 6;

/// The tab's name, read from bottom to top.
@interface QBSPTabView : NSView
@end

@implementation QBSPTabView

- (void)drawRect:(NSRect)rect {
    [[NSColor colorWithCalibratedRed:CGFloat{20} / 100 green:CGFloat{33} / 100 blue:CGFloat{55} / 100
                               alpha:1] set];
    NSRectFill(rect);
    NSDictionary* look =
        [NSDictionary dictionaryWithObjectsAndKeys:[NSFont boldSystemFontOfSize:14], NSFontAttributeName,
                                                   [NSColor whiteColor], NSForegroundColorAttributeName, nil];
    NSAffineTransform* upwards = [NSAffineTransform transform];
    [upwards translateXBy:width - margin yBy:2 * margin];
    [upwards rotateByDegrees:90];
    [upwards concat];
    [@"Quarrybook" drawAtPoint:NSZeroPoint withAttributes:look];
}

@end

@implementation QBSPTab

- (id)init {
    const NSRect screen = [[NSScreen mainScreen] frame];
    const NSRect frame = NSMakeRect(NSMaxX(screen) - width, NSMidY(screen) - height / 2, width, height);
    self = [super initWithContentRect:frame
                            styleMask:NSBorderlessWindowMask
                              backing:NSBackingStoreBuffered
                                defer:NO];
    if (self != nil) {
        [self setTitle:@"Quarrybook Tab"];
        [self setLevel:NSFloatingWindowLevel];
        [self setHidesOnDeactivate:NO];
        [self setContentView:[[[QBSPTabView alloc] init] autorelease]];
    }
    return self;
}

- (void)setVisible:(BOOL)visible {
    if (visible)
        [self orderFrontRegardless];
    else
        [self orderOut:nil];
}

@end
