#pragma once

#include "platform/Alert.h"
#include "platform/OpenPanel.h"
#include "platform/RunLoop.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace qbsp::contracts {

/// The main thread's run loop, and a user who responds to alerts and open panels.
class DialogsStage {
public:
    static std::unique_ptr<DialogsStage> simulated();
    static std::unique_ptr<DialogsStage> appKit();

    virtual ~DialogsStage() = default;

    [[nodiscard]] virtual platform::RunLoop& runLoop() = 0;
    [[nodiscard]] virtual platform::Alerts& alerts() = 0;
    [[nodiscard]] virtual platform::OpenPanels& openPanels() = 0;

    /// Lets the run loop run until the condition holds; returns the time that took. Fails the test when it
    /// never does.
    virtual platform::Seconds runUntil(const std::function<bool()>& condition) = 0;

    /// From now on the user presses that button of an alert.
    virtual void letUserPress(const std::string& button) = 0;

    /// What the user read in the alert, buttons included, and the button that Return presses.
    [[nodiscard]] virtual std::vector<std::string> textsOfAlert() = 0;
    [[nodiscard]] virtual std::string defaultButtonOfAlert() = 0;

    /// A folder that holds the applications "Clock.app" and "Mail.app" and the file "Notes.txt".
    [[nodiscard]] virtual std::string folder() const = 0;

    /// From now on the user chooses that name in an open panel, or cancels it.
    virtual void letUserChoose(const std::string& name) = 0;
    virtual void letUserCancel() = 0;
};

} // namespace qbsp::contracts
