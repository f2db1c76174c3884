#pragma once

#import "appkit/view/QBSPButton.h"
#import "appkit/view/QBSPHideTable.h"

#import <AppKit/AppKit.h>

namespace qbsp::appkit {

// All of these are autoreleased; the form's layout sets their frames.

/// A wrapping text field that the user cannot edit.
[[nodiscard]] NSTextField* makeLabel(NSTextAlignment alignment);

/// Makes the field such a text in a smaller font, aligned left.
void makeRemark(NSTextField* field);

[[nodiscard]] QBSPButton* makeCheckBox();
[[nodiscard]] QBSPButton* makePushButton();

[[nodiscard]] QBSPHideTable* makeHideTable();

/// A scroll view with the table in it.
[[nodiscard]] NSScrollView* makeScrollView(NSTableView* table);

} // namespace qbsp::appkit
