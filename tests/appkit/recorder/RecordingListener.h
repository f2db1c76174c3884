#pragma once

#include "appkit/recorder/RecorderLogic.h"

#include <optional>
#include <vector>

namespace qbsp::recorder {

/// A listener that remembers each call.
struct RecordingListener : RecorderListener {
    std::vector<KeyCombo> offered;
    std::vector<KeyCombo> reported;
    std::optional<Refusal> shownRefusal;
    std::optional<KeyCombo> takenCombo;
    bool showsUseElsewhere = false;

    bool isTaken(const KeyCombo& combo) override {
        offered.push_back(combo);
        return combo == takenCombo;
    }

    void refused(Refusal refusal) override { shownRefusal = refusal; }

    void refusalPassed() override { shownRefusal.reset(); }

    void usedElsewhere(bool isUsed) override { showsUseElsewhere = isUsed; }

    void comboChanged(const KeyCombo& combo) override { reported.push_back(combo); }

    void lookChanged() override {}
};

} // namespace qbsp::recorder
