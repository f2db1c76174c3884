#pragma once

// What Cocoa declares and GNUstep does not, as far as the adapters use it; and what nearly every file
// includes, since this is compiled once for all of them.

#import <AppKit/AppKit.h>

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <variant>
#include <vector>

@interface NSFileManager (CocoaOnly)
- (NSURL*)containerURLForSecurityApplicationGroupIdentifier:(NSString*)group;
@end

@interface NSWorkspace (CocoaOnly)
- (NSRunningApplication*)launchApplicationAtURL:(NSURL*)url
                                        options:(NSWorkspaceLaunchOptions)options
                                  configuration:(NSDictionary*)configuration
                                          error:(NSError**)error;
@end

@interface NSView (CocoaOnly)
- (NSRect)alignmentRectForFrame:(NSRect)frame;
- (NSRect)frameForAlignmentRect:(NSRect)rect;
@end

extern NSString* const NSWorkspaceApplicationKey;
