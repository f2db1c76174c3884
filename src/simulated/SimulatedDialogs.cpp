#include "simulated/SimulatedDialogs.h"

#include "simulated/Json.h"

#include <tuple>
#include <utility>

namespace qbsp::simulated {

namespace {

class SimulatedAlert final : public platform::Alert {
public:
    SimulatedAlert(const World& world, Transcript& transcript) : world_(world), transcript_(transcript) {}

    void setAlertStyle(platform::AlertStyle style) override {
        record("NSAlert setAlertStyle:", std::to_string(static_cast<unsigned>(style)));
    }

    void setMessageText(std::string_view text) override { record("NSAlert setMessageText:", jsonText(text)); }

    void setInformativeText(std::string_view text) override {
        record("NSAlert setInformativeText:", jsonText(text));
    }

    void addButtonWithTitle(std::string_view title) override {
        record("NSAlert addButtonWithTitle:", jsonText(title));
    }

    std::int64_t runModal() override {
        constexpr std::int64_t stopped = -1000;
        const std::int64_t result = transcript_.fails() ? stopped : world_.alertAnswer;
        transcript_.record("NSAlert runModal", {}, std::to_string(result));
        return result;
    }

private:
    void record(std::string_view operation, const std::string& argument) {
        std::ignore = transcript_.fails();
        transcript_.record(operation, {argument});
    }

    const World& world_;
    Transcript& transcript_;
};

} // namespace

class SimulatedOpenPanel final : public platform::OpenPanel {
public:
    explicit SimulatedOpenPanel(SimulatedOpenPanels& panels) : panels_(panels) {}

    void setCanChooseDirectories(bool canChoose) override {
        record("NSOpenPanel setCanChooseDirectories:", {json(canChoose)});
    }

    void setAllowsMultipleSelection(bool allows) override {
        record("NSOpenPanel setAllowsMultipleSelection:", {json(allows)});
    }

    void setAllowedFileTypes(const std::vector<std::string>& extensions) override {
        const platform::Array types(extensions.begin(), extensions.end());
        record("NSOpenPanel setAllowedFileTypes:", {json(types)});
    }

    void setDirectoryURL(const platform::URL& folder) override {
        record("NSOpenPanel setDirectoryURL:", {jsonText(folder.path())});
    }

    void beginSheetModalForWindow(platform::Window*,
                                  std::function<void(std::int64_t result)> completionHandler) override {
        record("NSOpenPanel beginSheetModalForWindow:completionHandler:", {});
        panels_.handler_ = std::move(completionHandler);
    }

    std::optional<platform::URL> chosenURL() const override { return panels_.chosen_; }

private:
    void record(std::string_view operation, std::initializer_list<std::string> arguments) {
        std::ignore = panels_.transcript_.fails();
        panels_.transcript_.record(operation, arguments);
    }

    SimulatedOpenPanels& panels_;
};

std::unique_ptr<platform::Alert> SimulatedAlerts::makeAlert() {
    return std::make_unique<SimulatedAlert>(world_, transcript_);
}

std::shared_ptr<platform::OpenPanel> SimulatedOpenPanels::openPanel() {
    return std::make_shared<SimulatedOpenPanel>(*this);
}

void SimulatedOpenPanels::endSheet(std::int64_t result, const std::optional<std::string>& chosenPath) {
    chosen_ = chosenPath ? std::optional(platform::URL::fileURLWithPath(*chosenPath)) : std::nullopt;
    const CompletionHandler handler = std::exchange(handler_, nullptr);
    handler(result);
}

} // namespace qbsp::simulated
