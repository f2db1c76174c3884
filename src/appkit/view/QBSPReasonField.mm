#import "appkit/view/QBSPReasonField.h"

@implementation QBSPReasonField

- (void)setLayout:(id<QBSPReasonLayout>)aLayout {
    layout = aLayout;
}

- (void)setStringValue:(NSString*)text {
    [super setStringValue:text];
    [layout layOutForm];
}

@end
