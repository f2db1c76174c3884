#pragma once

#import <AppKit/AppKit.h>

@interface NSApplication (Sandboxing)

/// The folder that the host shares with its Sorter, created if it is missing; nil when the process has no
/// group container.
- (NSURL*)sharedSorterFolder;

@end
