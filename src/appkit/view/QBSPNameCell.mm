#import "appkit/view/QBSPNameCell.h"

#include "appkit/view/ShortenedText.h"

#include <cmath>

static const CGFloat sidePadding = 2;

@interface QBSPNameCell ()
- (NSAttributedString*)attributed:(NSString*)text;
- (NSAttributedString*)textForWidth:(CGFloat)width;
@end

@implementation QBSPNameCell

- (void)setFonts:(qbsp::appkit::FontSubstitution*)someFonts {
    fonts = someFonts;
}

- (NSAttributedString*)attributed:(NSString*)text {
    NSMutableParagraphStyle* style = [[[NSParagraphStyle defaultParagraphStyle] mutableCopy] autorelease];
    [style setLineBreakMode:NSLineBreakByClipping];
    NSDictionary* attributes =
        [NSDictionary dictionaryWithObjectsAndKeys:[self font], NSFontAttributeName, [self textColor],
                                                   NSForegroundColorAttributeName, style,
                                                   NSParagraphStyleAttributeName, nil];
    return fonts->text(text, attributes);
}

- (NSAttributedString*)textForWidth:(CGFloat)width {
    NSString* text = qbsp::appkit::shortenedInTheMiddle([self stringValue], [&](NSString* candidate) {
        return [[self attributed:candidate] size].width <= width;
    });
    return [self attributed:text];
}

- (BOOL)isShortenedInFrame:(NSRect)frame {
    const CGFloat width = NSWidth(frame) - 2 * sidePadding;
    return [[self attributed:[self stringValue]] size].width > width;
}

- (void)drawInteriorWithFrame:(NSRect)frame inView:(NSView*)view {
    const NSRect room = NSInsetRect(frame, sidePadding, 0);
    NSAttributedString* text = [self textForWidth:NSWidth(room)];
    const CGFloat height = std::ceil([text size].height);
    const CGFloat y = std::floor(NSMidY(room) - height / 2);
    // A little wider than measured, so that rounding never wraps the last word.
    [text drawInRect:NSMakeRect(NSMinX(room), y, NSWidth(room) + sidePadding, height)];
}

@end
