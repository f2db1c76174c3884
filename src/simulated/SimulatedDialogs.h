#pragma once

#include "platform/Alert.h"
#include "platform/OpenPanel.h"
#include "simulated/Transcript.h"
#include "simulated/World.h"

#include <functional>

namespace qbsp::simulated {

class SimulatedAlerts final : public platform::Alerts {
public:
    SimulatedAlerts(const World& world, Transcript& transcript) : world_(world), transcript_(transcript) {}

    std::unique_ptr<platform::Alert> makeAlert() override;

private:
    const World& world_;
    Transcript& transcript_;
};

class SimulatedOpenPanel;

/// Makes panels, of which one at a time is shown as a sheet.
class SimulatedOpenPanels final : public platform::OpenPanels {
public:
    using CompletionHandler = std::function<void(std::int64_t result)>;

    explicit SimulatedOpenPanels(Transcript& transcript) : transcript_(transcript) {}

    std::shared_ptr<platform::OpenPanel> openPanel() override;

    [[nodiscard]] bool sheetIsOpen() const { return static_cast<bool>(handler_); }

    /// Ends the sheet, which must be open, with that result and choice.
    void endSheet(std::int64_t result, const std::optional<std::string>& chosenPath);

private:
    friend class SimulatedOpenPanel;

    Transcript& transcript_;
    CompletionHandler handler_;
    std::optional<platform::URL> chosen_;
};

} // namespace qbsp::simulated
