#pragma once

#include "appkit/recorder/RecorderLogic.h"

#import <Foundation/Foundation.h>

namespace qbsp::recorder {

/// What a recorder shows while it listens.
[[nodiscard]] NSString* listeningText();

/// What an empty recorder shows.
[[nodiscard]] NSString* emptyText();

/// What a screen reader says that an empty recorder holds.
[[nodiscard]] NSString* emptyValueText();

/// What a screen reader says that a recorder is.
[[nodiscard]] NSString* roleText();

/// A whole sentence that tells the user why a key was not taken. A taken combination may come with a reason
/// in words that are no sentence yet; nil or empty is none.
[[nodiscard]] NSString* refusalSentence(Refusal refusal, NSString* reason);

} // namespace qbsp::recorder
