#pragma once

#import "QBSPPaneRunner.h"

#import <AppKit/AppKit.h>

/// Quarrybook's preferences: a row of buttons, one for each page, and the chosen page below it. The pane
/// is notified whichever way it is shown and left.
@interface QBSPPreferencesWindow : NSObject {
    NSWindow* window;
    NSView* general;
    QBSPPaneRunner* runner;
    NSButton* generalButton;
    NSButton* sorterButton;
    NSView* page;
}

- (id)initWithRunner:(QBSPPaneRunner*)aRunner;

- (void)show;
- (NSWindow*)window;

/// The buttons that choose the pages.
- (NSButton*)generalButton;
- (NSButton*)sorterButton;

/// Notifies the pane, if it is shown, that it is being left.
- (void)leavePane;

@end
