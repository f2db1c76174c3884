#pragma once

#include "platform/Controls.h"
#include "platform/Value.h"

#include <memory>
#include <string>
#include <vector>

namespace qbsp::contracts {

/// A control of each kind, in a view. The table has the columns "1" and "2".
class ControlsStage {
public:
    static std::unique_ptr<ControlsStage> simulated();
    static std::unique_ptr<ControlsStage> appKit();

    virtual ~ControlsStage() = default;

    [[nodiscard]] virtual platform::TextField& textField() = 0;
    [[nodiscard]] virtual platform::Button& button() = 0;
    [[nodiscard]] virtual platform::RecorderControl& recorder() = 0;
    [[nodiscard]] virtual platform::TableView& table() = 0;

    /// What the view shows: "hidden" and "text"; "hidden", "enabled", "title" and "state"; "hidden", "code"
    /// and "flags".
    [[nodiscard]] virtual platform::Dictionary shownTextField() = 0;
    [[nodiscard]] virtual platform::Dictionary shownButton() = 0;
    [[nodiscard]] virtual platform::Dictionary shownRecorder() = 0;

    /// The user clicks the check box, which is off.
    virtual void clickButton() = 0;

    /// How many rows the data source has.
    virtual void setRowCount(std::int64_t count) = 0;

    [[nodiscard]] virtual std::int64_t shownRows() = 0;
    [[nodiscard]] virtual std::string shownHeader(std::size_t column) = 0;
    [[nodiscard]] virtual std::vector<std::int64_t> selectedRows() = 0;

    /// True when the row can be seen, where the table was scrolled to.
    [[nodiscard]] virtual bool rowIsVisible(std::int64_t row) = 0;
};

} // namespace qbsp::contracts
