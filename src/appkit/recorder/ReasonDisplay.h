#pragma once

#include "appkit/bridge/Retained.h"

#import <AppKit/AppKit.h>

namespace qbsp::recorder {

/// Says what is wrong with a recorder, in a field of its own and as the recorder's tool tip: why it refused
/// the last key or, when it refused none, that its combination is in use elsewhere too.
class ReasonDisplay {
public:
    /// The recorder must outlive the display.
    explicit ReasonDisplay(NSView* recorder) : recorder_(recorder) {}

    ~ReasonDisplay();
    ReasonDisplay(const ReasonDisplay&) = delete;
    ReasonDisplay& operator=(const ReasonDisplay&) = delete;

    /// The field, which may be nil, shows the reason from now on.
    void setField(NSTextField* field);

    [[nodiscard]] NSTextField* field() const { return field_.get(); }

    /// Each takes a sentence, or nil for none.
    void setRefusal(NSString* sentence);
    void setUseElsewhere(NSString* sentence);

private:
    void show();

    NSView* recorder_;
    appkit::Retained<NSTextField*> field_;
    appkit::Retained<NSString*> refusal_;
    appkit::Retained<NSString*> useElsewhere_;
    appkit::Retained<NSString*> shown_;
    appkit::Retained<NSString*> usualToolTip_; ///< what the tool tip said before a reason took its place
};

} // namespace qbsp::recorder
