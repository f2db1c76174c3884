#pragma once

#include "platform/Bundles.h"
#include "platform/Host.h"
#include "platform/Log.h"
#include "platform/ProcessInfo.h"
#include "platform/StringComparison.h"

#include <functional>
#include <memory>
#include <string>

namespace qbsp::contracts {

/// What the host's application object returns to the pane.
struct HostAnswers {
    bool isSandboxed = false;
    bool isPro = false;
};

/// The host: its application object, its process, and the bundles that it and the pane were loaded from. The
/// pane's bundle holds the text "Good day" for the key "Greeting".
class HostStage {
public:
    static std::unique_ptr<HostStage> simulated();
    static std::unique_ptr<HostStage> appKit();

    virtual ~HostStage() = default;

    [[nodiscard]] virtual platform::Host& host() = 0;
    [[nodiscard]] virtual platform::ProcessInfo& processInfo() = 0;
    [[nodiscard]] virtual platform::Log& log() = 0;
    [[nodiscard]] virtual platform::StringComparison& strings() = 0;
    [[nodiscard]] virtual platform::Bundles& bundles() = 0;

    virtual void letHostAnswer(HostAnswers answers) = 0;
    virtual void letHostNotKnowTheQuestions() = 0;

    /// The name of the process and the path of its main bundle, as other processes see them.
    [[nodiscard]] virtual std::string trueProcessName() const = 0;
    [[nodiscard]] virtual std::string trueMainBundlePath() const = 0;

    /// What reaches the log while the function runs.
    [[nodiscard]] virtual std::string logged(const std::function<void()>& function) = 0;
};

} // namespace qbsp::contracts
