#import "appkit/view/QBSPReasonField.h"

#import "appkit/view/QBSPPaneView.h"

@implementation QBSPReasonField

- (void)setPaneView:(QBSPPaneView*)aPaneView {
    paneView = aPaneView;
}

- (void)setStringValue:(NSString*)text {
    [super setStringValue:text];
    [paneView layOutForm];
}

@end
