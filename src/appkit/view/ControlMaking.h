#pragma once

#import "appkit/view/QBSPButton.h"
#import "appkit/view/QBSPHideTable.h"
#import "appkit/view/QBSPReasonField.h"

#import <AppKit/AppKit.h>

namespace qbsp::appkit {

// All of these are autoreleased; the form's layout sets their frames.

/// A wrapping text field that the user cannot edit.
[[nodiscard]] NSTextField* makeLabel(NSTextAlignment alignment);

/// Such a text in a smaller font, aligned left.
[[nodiscard]] NSTextField* makeRemark();

[[nodiscard]] QBSPReasonField* makeReasonField();

[[nodiscard]] QBSPButton* makeCheckBox();
[[nodiscard]] QBSPButton* makePushButton();

[[nodiscard]] QBSPHideTable* makeHideTable();

/// A scroll view with the table in it.
[[nodiscard]] NSScrollView* makeScrollView(NSTableView* table);

} // namespace qbsp::appkit
