#pragma once

#import <Foundation/Foundation.h>

@class QBSPRecorderView;

/// Judges what a recorder was offered, and hears what the user recorded.
@protocol QBSPRecorderViewDelegate

/// YES refuses the combination. The reason, unless it is left alone, is then shown to the user.
- (BOOL)recorderView:(QBSPRecorderView*)view
           isKeyCode:(NSInteger)code
       andFlagsTaken:(NSUInteger)cocoaFlags
              reason:(NSString**)reason;

/// The user recorded that combination, or cleared the recorder (code -1, flags 0).
- (void)recorderView:(QBSPRecorderView*)view keyComboDidChange:(NSInteger)code flags:(NSUInteger)cocoaFlags;

@end
