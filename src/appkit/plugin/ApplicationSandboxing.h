#pragma once

#import <AppKit/AppKit.h>

@interface NSApplication (Sandboxing)

/// The folder that the host shares with its Sorter, made when it is missing; nil outside the group's
/// container.
- (NSURL*)sharedSorterFolder;

@end
