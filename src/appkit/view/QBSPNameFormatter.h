#pragma once

#import <Foundation/Foundation.h>

/// Shows an application's name on one line of a table, whatever characters are in it: line feeds and other
/// controls as spaces, and a name that no column could hold shortened.
@interface QBSPNameFormatter : NSFormatter
@end
