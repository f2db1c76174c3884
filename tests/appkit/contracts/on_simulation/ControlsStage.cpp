#include "stages/ControlsStage.h"

#include "simulated/SimulatedControls.h"

namespace qbsp::contracts {

using platform::Array;
using platform::Dictionary;
using platform::Value;

namespace {

std::int64_t rowIn(const Value& value) {
    return *value.as<std::int64_t>();
}

class SimulatedStage final : public ControlsStage {
public:
    platform::TextField& textField() override { return textField_; }

    platform::Button& button() override { return button_; }

    platform::RecorderControl& recorder() override { return recorder_; }

    platform::TableView& table() override { return table_; }

    Dictionary shownTextField() override { return textField_.contents(); }

    Dictionary shownButton() override { return button_.contents(); }

    Dictionary shownRecorder() override {
        Dictionary shown = recorder_.contents();
        shown.erase("delegate");
        return shown;
    }

    void clickButton() override { button_.click(platform::ButtonState::on); }

    void setRowCount(std::int64_t count) override { rowCount_ = count; }

    std::int64_t shownRows() override { return rowIn(table_.contents()["rows"]); }

    std::string shownHeader(std::size_t column) override {
        const Value columns = table_.contents()["columns"];
        const Value header = columns.as<Array>()->at(column).as<Array>()->at(1);
        return *header.as<std::string>();
    }

    std::vector<std::int64_t> selectedRows() override {
        const Value selected = table_.contents()["selected"];
        std::vector<std::int64_t> rows;
        for (const Value& row : *selected.as<Array>())
            rows.push_back(rowIn(row));
        return rows;
    }

    bool rowIsVisible(std::int64_t row) override { return table_.contents()["scrolledTo"] == Value(row); }

private:
    simulated::Transcript transcript_;
    std::int64_t rowCount_ = 0;
    simulated::SimulatedTextField textField_{"textField", transcript_};
    simulated::SimulatedButton button_{"button", transcript_};
    simulated::SimulatedRecorder recorder_{"recorder", transcript_};
    simulated::SimulatedTable table_{"table", transcript_, {"1", "2"}, [this] {
                                         return rowCount_;
                                     }};
};

} // namespace

std::unique_ptr<ControlsStage> ControlsStage::simulated() {
    return std::make_unique<SimulatedStage>();
}

} // namespace qbsp::contracts
