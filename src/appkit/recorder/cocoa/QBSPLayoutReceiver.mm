#import "appkit/recorder/cocoa/QBSPLayoutReceiver.h"

#import <Carbon/Carbon.h>

@implementation QBSPLayoutReceiver

- (id)initWithListener:(qbsp::recorder::LayoutListener&)aListener {
    if ((self = [super init]) != nil) {
        listener = &aListener;
        NSString* name = (NSString*)kTISNotifySelectedKeyboardInputSourceChanged;
        [[NSDistributedNotificationCenter defaultCenter] addObserver:self
                                                            selector:@selector(layoutDidChange:)
                                                                name:name
                                                              object:nil];
    }
    return self;
}

- (void)invalidate {
    [[NSDistributedNotificationCenter defaultCenter] removeObserver:self];
}

- (void)layoutDidChange:(NSNotification*)notification {
    listener->layoutChanged();
}

@end
