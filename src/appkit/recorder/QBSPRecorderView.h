#pragma once

#import "appkit/recorder/RecorderViewDelegate.h"

#import <AppKit/AppKit.h>

#include <memory>

struct QBSPRecorderParts;

/// A field that records a key combination. A click or Space makes it listen; Esc, the loss of the focus or of
/// the window's key state end that; Delete and the small cross clear it.
///
/// Codes are the Mac's virtual key codes and flags Cocoa's, on every system. -1 with 0 is the empty
/// combination.
@interface QBSPRecorderView : NSView {
  @private
    std::unique_ptr<QBSPRecorderParts> _parts;
}

/// Shows that combination from now on; the delegate does not hear of it. Bits of the flags other than Shift,
/// Control, Option and Command are dropped, and so are all flags of a negative code.
- (void)setKeyCode:(NSInteger)code flags:(NSUInteger)cocoaFlags;

- (NSInteger)keyCode;
- (NSUInteger)flags;

/// YES while the next combination would be recorded.
- (BOOL)isListening;

/// The text that is shown: the combination in symbols, or an invitation.
- (NSString*)stringValue;

/// Without a delegate every combination is accepted, and nobody hears of it. Not retained.
- (void)setDelegate:(id<QBSPRecorderViewDelegate>)delegate;
- (id<QBSPRecorderViewDelegate>)delegate;

/// Where a refusal is shown in words until the next key, and emptied after it. Two recorders may share one.
/// Retained, because a recorder that goes away while it listens still empties it.
- (void)setReasonField:(NSTextField*)field;
- (NSTextField*)reasonField;

/// What a screen reader calls the recorder.
- (void)setAccessibilityLabel:(NSString*)label;
- (NSString*)accessibilityLabel;

/// What a screen reader says that it is, what it holds or does ("Command Shift C"), and why it refused a key;
/// nil when it refused none. GNUstep's views lack these methods, so they are declared here.
- (NSString*)accessibilityRole;
- (NSString*)accessibilityRoleDescription;
- (id)accessibilityValue;
- (NSString*)accessibilityHelp;

/// What a screen reader's user does instead of a click, and of the small cross. YES when it was done.
- (BOOL)accessibilityPerformPress;
- (BOOL)accessibilityPerformDelete;

@end
