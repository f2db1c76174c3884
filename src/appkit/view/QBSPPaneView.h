#pragma once

#import "appkit/recorder/QBSPRecorderView.h"
#import "appkit/view/FormLayout.h"

#import <AppKit/AppKit.h>

/// The pane's main view: a form of all its controls. It owns them; texts are set by others.
@interface QBSPPaneView : NSView {
    QBSPRecorderView* clipHotKeyRecorder;
    QBSPRecorderView* noteHotKeyRecorder;
    NSButton* showAtLoginCheckbox;
    NSButton* toggleLaunchButton;
    NSButton* visibilityButton;
    NSTextField* availabilityLabel;
    NSTextField* visibilityLabel;
    NSTextField* descriptionLabel;
    NSTextField* takeNoteLabel;
    NSTextField* copySelectionLabel;
    NSTextField* attentionLabel;
    NSTextField* reasonField;
    NSButton* addButton;
    NSButton* resetFullscreenSettingsButton;
    NSTableView* hideAppsTable;
    NSScrollView* hideAppsScrollView;
    NSTextField* hideAppLabel;
    qbsp::appkit::FormLayout* form;
}

- (QBSPRecorderView*)clipHotKeyRecorder;
- (QBSPRecorderView*)noteHotKeyRecorder;
- (NSButton*)showAtLoginCheckbox;
- (NSButton*)toggleLaunchButton;
- (NSButton*)visibilityButton;
- (NSTextField*)availabilityLabel;
- (NSTextField*)visibilityLabel;
- (NSTextField*)descriptionLabel;
- (NSTextField*)takeNoteLabel;
- (NSTextField*)copySelectionLabel;
- (NSTextField*)attentionLabel;
- (NSButton*)addButton;
- (NSButton*)resetFullscreenSettingsButton;
- (NSTableView*)hideAppsTable;
- (NSTextField*)hideAppLabel;

/// To be called when texts were set or controls hidden: lays the form out again, and names the controls
/// without a title to assistive software by their labels.
- (void)contentsDidChange;

/// The first visible and the last control in the order of the Tab key.
- (NSView*)firstControl;
- (NSView*)lastControl;

@end
