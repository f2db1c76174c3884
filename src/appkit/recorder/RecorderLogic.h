#pragma once

#include "appkit/recorder/VirtualKeys.h"

#include <optional>

namespace qbsp::recorder {

/// A key that went down, with the modifiers held at that moment.
struct KeyPress {
    VirtualKey key = noKey;
    CocoaFlags flags = 0;
    bool isRepeat = false;
};

/// Why a listening recorder refused a key.
enum class Refusal {
    plainKey,   ///< no modifier, and no function key
    shiftAlone, ///< Shift alone does not tell a hot key from typing
    unknownKey, ///< a key that the Mac's keyboard does not have
    taken       ///< already in use
};

/// What the caller still has to do with a key.
enum class KeyOutcome {
    notHandled,  ///< the next responder gets the key
    handled,     ///< no other responder may act on it
    nextView,    ///< the focus moves on
    previousView ///< the focus moves back
};

/// The delegate of a recorder's logic.
class RecorderListener {
public:
    virtual ~RecorderListener() = default;

    /// Returns true when the combination is already in use; refused() is called next.
    [[nodiscard]] virtual bool isTaken(const KeyCombo& combo) = 0;

    /// A key was refused, and the user must be told why.
    virtual void refused(Refusal refusal) = 0;

    /// The last refusal no longer applies.
    virtual void refusalPassed() = 0;

    /// Whether the combination that the recorder has is in use elsewhere too. Called with true directly after
    /// isTaken().
    virtual void usedElsewhere(bool isUsed) = 0;

    /// The user recorded that combination, or cleared the recorder.
    virtual void comboChanged(const KeyCombo& combo) = 0;

    /// The recorder must be redrawn: its combination, whether it listens, or what is held may have changed.
    virtual void lookChanged() = 0;
};

/// A recorder without its appearance: its combination, whether it listens, and how it responds to keys.
class RecorderLogic {
public:
    /// Starts idle and empty. The listener must outlive the logic.
    explicit RecorderLogic(RecorderListener& listener);

    [[nodiscard]] const KeyCombo& combo() const { return combo_; }

    [[nodiscard]] bool isArmed() const { return armed_; }

    /// Sets the combination without reporting it.
    void setCombo(const KeyCombo& combo);

    /// Asks whether the combination that it has is in use elsewhere too, as two stored ones can be, and
    /// reports the result. An empty one never is.
    void review();

    /// Starts listening; does nothing when it already listens.
    void arm();

    /// Stops listening and keeps the combination.
    void disarm();

    /// Stops listening and sets the empty combination. Reports it, unless the combination was empty already.
    void clear();

    /// Takes back what the user recorded or cleared last, and reports that; a second time, takes that back.
    /// Does nothing while it listens, before the user has changed anything, and since setCombo(). A
    /// combination that is in use by now is refused.
    void undo();

    /// While it listens, those modifiers wait for a key; takes 0 when none is held.
    void setHeldModifiers(CocoaFlags held);

    /// 0 while it does not listen.
    [[nodiscard]] CocoaFlags heldModifiers() const { return held_; }

    /// Acts on the key, and returns what is left for the caller to do.
    [[nodiscard]] KeyOutcome keyPressed(const KeyPress& press);

private:
    [[nodiscard]] KeyOutcome plainKeyPressed(VirtualKey key);
    [[nodiscard]] KeyOutcome keyPressedWhileArmed(const KeyPress& press);
    [[nodiscard]] KeyOutcome moveFocus(KeyOutcome direction);
    void endListening();
    void offer(const KeyCombo& combo);
    void accept(const KeyCombo& combo);

    RecorderListener& listener_;
    KeyCombo combo_;
    std::optional<KeyCombo> earlier_; ///< what the user's last change replaced
    CocoaFlags held_ = 0;
    bool armed_ = false;
};

} // namespace qbsp::recorder
