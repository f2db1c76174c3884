#pragma once

#import <Foundation/Foundation.h>

namespace qbsp::appkit {

// What the view's tool tips say, in the user's language. The pane sets all other texts.

[[nodiscard]] NSString* visibilityTip();
[[nodiscard]] NSString* loginTip();
[[nodiscard]] NSString* launchTip();
[[nodiscard]] NSString* recorderTip();
[[nodiscard]] NSString* listTip();
[[nodiscard]] NSString* addTip();
[[nodiscard]] NSString* resetTip();

} // namespace qbsp::appkit
