#pragma once

#import <AppKit/AppKit.h>

namespace qbsp::appkit {

// All of these are autoreleased; the form's layout sets their frames.

/// A wrapping text field that the user cannot edit.
[[nodiscard]] NSTextField* makeLabel(NSTextAlignment alignment);

/// The same in the small system font, aligned left.
[[nodiscard]] NSTextField* makeRemark();

[[nodiscard]] NSButton* makeCheckBox();
[[nodiscard]] NSButton* makePushButton();

/// The hide list's table: a column of names, which cannot be edited, and one of check boxes.
[[nodiscard]] NSTableView* makeHideTable();

/// A scroll view with the table in it.
[[nodiscard]] NSScrollView* makeScrollView(NSTableView* table);

/// Sets the element's accessibility label, where the system supports it.
void setAccessibilityLabel(id element, NSString* label);

} // namespace qbsp::appkit
