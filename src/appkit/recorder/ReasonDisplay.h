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

    /// From now on uses that field, which may be nil; empties the one before of what it shows for this
    /// recorder.
    void setField(NSTextField* field);

    [[nodiscard]] NSTextField* field() const { return field_.get(); }

    void show(NSString* sentence);

    /// Empties the field, unless it says something else by now.
    void hide();

    /// The sentence that is shown; nil when there is none.
    [[nodiscard]] NSString* shown() const { return shown_.get(); }

  private:
    appkit::Retained<NSTextField*> field_;
    appkit::Retained<NSString*> shown_;
};

} // namespace qbsp::recorder
