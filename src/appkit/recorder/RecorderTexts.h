#pragma once

#include "appkit/recorder/RecorderLogic.h"

#import <Foundation/Foundation.h>

namespace qbsp::recorder {

/// What a recorder shows while it listens.
[[nodiscard]] NSString* listeningText();

/// What an empty recorder shows.
[[nodiscard]] NSString* emptyText();

/// What a screen reader announces as the value of an empty recorder.
[[nodiscard]] NSString* emptyValueText();

/// What a screen reader announces as the role of a recorder.
[[nodiscard]] NSString* roleText();

/// A sentence that tells the user why a key was refused. For a combination that is taken, the reason may be a
/// phrase, which is made into a sentence; it is nil or empty when there is none.
[[nodiscard]] NSString* refusalSentence(Refusal refusal, NSString* reason);

} // namespace qbsp::recorder
