#pragma once

#import <Foundation/Foundation.h>

@class QBSPRecorderView;

/// Posted by a recorder after the user recorded a combination or cleared it, and its delegate was notified.
extern NSString* const QBSPRecorderDidChangeNotification;

/// Decides whether a recorder may take a combination, and is notified when the user changes it.
@protocol QBSPRecorderViewDelegate

/// Returns YES to refuse the combination. The reason, if it is set, is then shown to the user.
- (BOOL)recorderView:(QBSPRecorderView*)view
           isKeyCode:(NSInteger)code
       andFlagsTaken:(NSUInteger)cocoaFlags
              reason:(NSString**)reason;

/// The user recorded that combination, or cleared the recorder (code -1, flags 0).
- (void)recorderView:(QBSPRecorderView*)view keyComboDidChange:(NSInteger)code flags:(NSUInteger)cocoaFlags;

@end
