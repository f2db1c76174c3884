#pragma once

#include "appkit/view/FormLayout.h"
#include "appkit/view/ViewControls.h"

#import <AppKit/AppKit.h>

#include <memory>

/// The pane's main view: a form of all its controls. It owns them; their texts are set by others.
@interface QBSPPaneView : NSView {
    qbsp::appkit::ViewControls controls;
    NSTextField* reasonField;
    NSButton* addButton;
    NSScrollView* hideAppsScrollView;
    std::unique_ptr<qbsp::appkit::FormLayout> form;
}

/// The pane's controls.
- (const qbsp::appkit::ViewControls&)controls;

/// The button that is the view's own, whose title and action the plug-in sets.
- (NSButton*)addButton;

/// The names of the pane's controls, in the order of its fields.
- (NSArray*)controlNames;

/// The control of one of these names, or of "addButton"; nil for any other. It is also found by key, by a
/// host that knows no more of the view than names.
- (NSView*)controlNamed:(NSString*)name;

/// To be called when texts were set or controls hidden: lays the form out again, and gives the controls
/// without a title the text of their labels as accessibility label.
- (void)contentsDidChange;

/// The first visible and the last control in the order of the Tab key.
- (NSView*)firstControl;
- (NSView*)lastControl;

@end
