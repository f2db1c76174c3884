#pragma once

#include "appkit/bridge/Retained.h"

#import <AppKit/AppKit.h>

namespace qbsp::recorder {

/// The field in which a recorder says why it refused a key. Other recorders may use the same field.
class ReasonDisplay {
public:
    ReasonDisplay() = default;
    ~ReasonDisplay();
    ReasonDisplay(const ReasonDisplay&) = delete;
    ReasonDisplay& operator=(const ReasonDisplay&) = delete;

    /// Uses that field, which may be nil, from now on. Clears the previous field if it shows this recorder's
    /// sentence.
    void setField(NSTextField* field);

    [[nodiscard]] NSTextField* field() const { return field_.get(); }

    void show(NSString* sentence);

    /// Clears the field, unless it shows something else by now.
    void hide();

    /// The sentence that is shown; nil when there is none.
    [[nodiscard]] NSString* shown() const { return shown_.get(); }

private:
    appkit::Retained<NSTextField*> field_;
    appkit::Retained<NSString*> shown_;
};

} // namespace qbsp::recorder
