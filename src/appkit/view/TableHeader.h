#pragma once

#import <AppKit/AppKit.h>

namespace qbsp::appkit {

/// Gives the columns of the table, which have no titles yet, headers in the system's colors for headers. On
/// GNUstep, they and the corner beside them have the color of shadows otherwise.
void setUpHeader(NSTableView* table);

} // namespace qbsp::appkit
