#import "appkit/view/QBSPReasonField.h"

#include "appkit/drawing/Fonts.h"

@implementation QBSPReasonField

- (void)setLayout:(id<QBSPReasonLayout>)aLayout {
    layout = aLayout;
}

- (void)setStringValue:(NSString*)text {
    [self setFont:qbsp::appkit::fontForText(text, qbsp::appkit::remarkFont())];
    [super setStringValue:text];
    [layout layOutForm];
}

@end
