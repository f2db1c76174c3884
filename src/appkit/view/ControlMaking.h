#pragma once

#import <AppKit/AppKit.h>

namespace qbsp::appkit {

// All of these are autoreleased and have the size of their contents once they have a text.

/// A text that the user cannot edit, on one line or wrapped.
[[nodiscard]] NSTextField* makeLabel(NSTextAlignment alignment);

/// The same in the small font of remarks.
[[nodiscard]] NSTextField* makeRemark();

[[nodiscard]] NSButton* makeCheckBox();
[[nodiscard]] NSButton* makePushButton();

/// The hide list's table: a column of names, which cannot be edited, and one of check boxes.
[[nodiscard]] NSTableView* makeHideTable();

/// The table in a frame that scrolls.
[[nodiscard]] NSScrollView* makeScrollView(NSTableView* table);

/// Tells assistive software what the element is for, where the system can.
void setAccessibilityLabel(id element, NSString* label);

} // namespace qbsp::appkit
