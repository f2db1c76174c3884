#pragma once

#import <Foundation/Foundation.h>

#ifdef __cplusplus
extern "C" {
#endif

/// A row as one writes it straight on Foundation.
@interface FoundationRow : NSObject {
@public
    NSString* appName;
    NSNumber* hideApp;
}
- (id)initWithName:(NSString*)name hide:(NSNumber*)hide;
- (NSComparisonResult)compareStringUsingSelector:(FoundationRow*)other;
@end

/// The rows of the list that is stored in the file, sorted; the caller owns the array.
NSMutableArray* loadedByFoundation(NSString* file);

/// The row of that name, ignoring case; NSNotFound when there is none.
NSUInteger foundByFoundation(NSArray* rows, NSString* name);

/// Stores the rows in the file, in the steps that the pane takes too: lock, read, merge, write beside, sync,
/// read back, rename, sync the folder. Returns nil, or which of them failed.
NSString* failureOfSaveByFoundation(NSArray* rows, NSString* file);

#ifdef __cplusplus
}
#endif
