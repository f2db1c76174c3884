#pragma once

#include "RecorderWindow.h"
#include "appkit/bridge/Retained.h"

#include <gtest/gtest.h>
#include <string>

namespace qbsp::recorder {

inline constexpr VirtualKey keyA = 0;
inline constexpr VirtualKey keyC = 8;
inline constexpr KeyCombo commandA{.flags = modifiers::command, .code = keyA};

/// A window on the screen with real recorders in it, worked by a real keyboard and mouse.
class RecorderView : public testing::Test {
protected:
    void SetUp() override;
    void TearDown() override;

    /// Presses and releases keys together, such as "ctrl+shift+c", and waits until the window has seen them.
    void press(const std::string& keys);

    /// Clicks into the middle of the view.
    void click(NSView* view);
    void clickClearButton(QBSPRecorderView* view);
    void clickAt(NSView* view, NSPoint point);

    /// Makes the view the first responder without a click.
    void focus(NSView* view);
    void armFirst();

    /// Makes the window the one that keys go to.
    void makeKey(NSWindow* window);

    /// True when the X server sends this application no release of a key while it is held down.
    [[nodiscard]] bool isSentNoReleaseOfHeldKeys() const;

    [[nodiscard]] KeyCombo comboOf(QBSPRecorderView* view) const;
    [[nodiscard]] std::string reason() const;

    DelegateCalls delegateCalls;
    RecorderWindow* window = nil;
    QBSPRecorderView* first = nil;
    QBSPRecorderView* second = nil;

private:
    appkit::Retained<RecordingDelegate*> delegate_;
};

[[nodiscard]] std::string text(NSString* string);

/// What the view shows on the screen.
[[nodiscard]] NSData* picture(NSView* view);

/// Makes the second of the keyboard's layouts the one in use.
void useSecondLayout(NSWindow* window);

} // namespace qbsp::recorder
