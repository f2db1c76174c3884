#pragma once

#import "appkit/recorder/RecorderViewDelegate.h"

#import <AppKit/AppKit.h>

#include <memory>

struct QBSPRecorderParts;

/// A field that records a key combination. A click or Space makes it listen; Esc, or losing the focus or the
/// window's key status, ends that. Delete clears it while it listens, the small cross at any time; Command-Z
/// brings back what was there.
///
/// On every system, codes are the Mac's virtual key codes and flags are Cocoa's. Code -1 with flags 0 is the
/// empty combination.
@interface QBSPRecorderView : NSView {
@private
    std::unique_ptr<QBSPRecorderParts> _parts;
}

/// Sets the combination without notifying the delegate. Flags other than Shift, Control, Option and Command
/// are dropped, and a negative code sets the empty combination.
- (void)setKeyCode:(NSInteger)code flags:(NSUInteger)cocoaFlags;

- (NSInteger)keyCode;
- (NSUInteger)flags;

/// YES while the next combination would be recorded.
- (BOOL)isListening;

/// The text that is shown: the combination as this system writes it, the modifiers that are held while it
/// listens, or a prompt.
- (NSString*)stringValue;

/// Not retained. Without a delegate, every combination is accepted and none is reported.
- (void)setDelegate:(id<QBSPRecorderViewDelegate>)delegate;
- (id<QBSPRecorderViewDelegate>)delegate;

/// The recorder's own field for what is wrong: why a key was refused, until the next key, or that the
/// combination is in use elsewhere too. The tool tip then says the same. Retained, because a recorder that is
/// deallocated still clears it.
- (void)setReasonField:(NSTextField*)field;
- (NSTextField*)reasonField;

/// Asks the delegate whether the combination is in use elsewhere too, and shows its reason, until the next
/// review or change, when it is.
- (void)reviewCombination;

/// The name that a screen reader gives the recorder.
- (void)setAccessibilityLabel:(NSString*)label;
- (NSString*)accessibilityLabel;

/// What a screen reader says of the recorder: its role, its value in words ("Control Shift C"), and what its
/// tool tip says. GNUstep's views lack these methods, so they are declared here.
- (NSString*)accessibilityRole;
- (NSString*)accessibilityRoleDescription;
- (id)accessibilityValue;
- (NSString*)accessibilityHelp;

/// What a screen reader's user does in place of clicking the recorder or its small cross. Returns YES when it
/// was done.
- (BOOL)accessibilityPerformPress;
- (BOOL)accessibilityPerformDelete;

/// Keeps the combination. Does nothing when it does not listen.
- (void)stopListening;

/// Takes back what the user recorded or cleared last, as Command-Z does.
- (void)undo:(id)sender;

@end
