#pragma once

#import <Foundation/Foundation.h>

/// Shows an application's name on one line of a table, whatever characters it has: line breaks and other
/// control characters become spaces, and a very long name is shortened.
@interface QBSPNameFormatter : NSFormatter
@end
