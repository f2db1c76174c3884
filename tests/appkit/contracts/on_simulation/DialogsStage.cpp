#include "stages/DialogsStage.h"

#include "scenario/Words.h"
#include "simulated/SimulatedPlatform.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace qbsp::contracts {

namespace {

/// The text that was set or added in that line of the transcript; none in other lines.
std::optional<std::string> textIn(const std::string& line) {
    const auto start = line.find("(\"");
    if (!line.starts_with("NSAlert ") || start == std::string::npos)
        return std::nullopt;
    const std::string argument = line.substr(start + 1, line.rfind(')') - start - 1);
    return scenario::Words(argument).text();
}

class SimulatedStage final : public DialogsStage {
public:
    platform::RunLoop& runLoop() override { return platform_.runLoop; }

    platform::Alerts& alerts() override { return platform_.alerts; }

    platform::OpenPanels& openPanels() override { return platform_.openPanels; }

    platform::Seconds runUntil(const std::function<bool()>& condition) override {
        for (int hundredths = 0; hundredths < 1000; ++hundredths) {
            if (condition())
                return platform::Seconds(hundredths * 0.01);
            platform_.runLoop.runFor(scenario::Decimal::of(0.01));
            if (platform_.openPanels.sheetIsOpen())
                platform_.openPanels.endSheet(choice_ ? platform::NSOKButton : 0, choice_);
        }
        ADD_FAILURE() << "the condition never held";
        return {};
    }

    void letUserPress(const std::string& button) override {
        constexpr std::int64_t firstButton = platform::NSAlertFirstButtonReturn;
        platform_.world.alertAnswer = button == "First" ? firstButton : firstButton + 1;
    }

    std::vector<std::string> textsOfAlert() override {
        std::vector<std::string> texts;
        for (const std::string& line : linesSoFar())
            if (const auto text = textIn(line))
                texts.push_back(*text);
        return texts;
    }

    std::string defaultButtonOfAlert() override {
        const auto lines = linesSoFar();
        const auto first = std::ranges::find_if(
            lines, [](const std::string& line) { return line.starts_with("NSAlert addButtonWithTitle:"); });
        return first == lines.end() ? "" : textIn(*first).value_or("");
    }

    std::string folder() const override { return "/Applications"; }

    void letUserChoose(const std::string& name) override { choice_ = folder() + "/" + name; }

    void letUserCancel() override { choice_.reset(); }

private:
    const std::vector<std::string>& linesSoFar() {
        std::ranges::move(platform_.transcript.take(), std::back_inserter(lines_));
        return lines_;
    }

    simulated::SimulatedPlatform platform_;
    std::vector<std::string> lines_;
    std::optional<std::string> choice_;
};

} // namespace

std::unique_ptr<DialogsStage> DialogsStage::simulated() {
    return std::make_unique<SimulatedStage>();
}

} // namespace qbsp::contracts
