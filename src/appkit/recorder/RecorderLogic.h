#pragma once

#include "appkit/recorder/VirtualKeys.h"

namespace qbsp::recorder {

/// A key that went down, with the modifiers held at that moment.
struct KeyPress {
    VirtualKey key = noKey;
    CocoaFlags flags = 0;
    bool isRepeat = false;
};

/// Why a recorder that listens did not take a key.
enum class Refusal {
    plainKey,   ///< no modifier, and no function key
    shiftAlone, ///< Shift is no modifier to tell a hot key from typing
    unknownKey, ///< a key that the Mac's keyboard does not have
    taken       ///< it is somebody else's
};

/// What is left to do with a key once the logic has seen it.
enum class KeyAnswer {
    notOurs,     ///< nothing happened: the key belongs to whoever comes next
    done,        ///< dealt with; nobody else may act on it
    nextView,    ///< the focus moves on
    previousView ///< the focus moves back
};

/// Whom a recorder's logic asks and tells.
class RecorderListener {
public:
    virtual ~RecorderListener() = default;

    /// True when the combination is somebody else's. Then refused() follows at once.
    [[nodiscard]] virtual bool isTaken(const KeyCombo& combo) = 0;

    /// The user must be told in words.
    virtual void refused(Refusal refusal) = 0;

    /// What the last refusal said no longer matters.
    virtual void refusalPassed() = 0;

    /// The user recorded that combination, or cleared the recorder.
    virtual void comboChanged(const KeyCombo& combo) = 0;

    /// What is shown may be out of date: the combination, or whether the recorder listens.
    virtual void lookChanged() = 0;
};

/// A recorder without its looks: what it holds, whether it listens, and what a key does to it.
class RecorderLogic {
public:
    /// Starts idle and empty. The listener must outlive the logic.
    explicit RecorderLogic(RecorderListener& listener);

    [[nodiscard]] const KeyCombo& combo() const { return combo_; }

    [[nodiscard]] bool isArmed() const { return armed_; }

    /// The program's combination: held from now on, and not reported.
    void setCombo(const KeyCombo& combo);

    /// Listens from now on; does nothing when it does already.
    void arm();

    /// Listens no more, and keeps what it holds.
    void disarm();

    /// Holds the empty combination from now on and reports it, unless it was empty already. Listens no more.
    void clear();

    /// What the key means here is done; the answer says what is left for the caller.
    [[nodiscard]] KeyAnswer keyPressed(const KeyPress& press);

private:
    [[nodiscard]] KeyAnswer plainKeyPressed(VirtualKey key);
    [[nodiscard]] KeyAnswer keyPressedWhileArmed(const KeyPress& press);
    [[nodiscard]] KeyAnswer moveFocus(KeyAnswer direction);
    void offer(const KeyCombo& combo);
    void accept(const KeyCombo& combo);

    RecorderListener& listener_;
    KeyCombo combo_;
    bool armed_ = false;
};

} // namespace qbsp::recorder
