#pragma once

#include "platform/Controls.h"
#include "platform/Value.h"
#include "simulated/Transcript.h"

#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace qbsp::simulated {

/// What every simulated control has: its field's name, under which it records its calls.
class ControlRecord {
public:
    ControlRecord(std::string field, Transcript& transcript)
        : field_(std::move(field)), transcript_(transcript) {}

    /// Records the call. False when it fails, and so has no effect.
    [[nodiscard]] bool record(std::string_view selector, std::initializer_list<std::string> arguments);

    /// Records a lookup. False when it fails or when there is nothing to find.
    [[nodiscard]] bool recordLookup(std::string_view selector, const std::string& argument, bool exists);

private:
    std::string field_;
    Transcript& transcript_;
};

class SimulatedTextField final : public platform::TextField {
public:
    SimulatedTextField(std::string field, Transcript& transcript) : record_(std::move(field), transcript) {}

    void setHidden(bool hidden) override;
    void setStringValue(std::string_view text) override;

    /// What the control shows, by name.
    [[nodiscard]] platform::Dictionary contents() const;

private:
    ControlRecord record_;
    bool hidden_ = false;
    std::string text_;
};

class SimulatedButton final : public platform::Button {
public:
    SimulatedButton(std::string field, Transcript& transcript) : record_(std::move(field), transcript) {}

    void setHidden(bool hidden) override;
    void setTitle(std::string_view title) override;
    void setEnabled(bool enabled) override;
    void setState(platform::ButtonState state) override;

    platform::ButtonState state() const override { return state_; }

    /// The user's click: no operation of the pane.
    void click(platform::ButtonState state) { state_ = state; }

    [[nodiscard]] platform::Dictionary contents() const;

private:
    ControlRecord record_;
    bool hidden_ = false;
    std::string title_;
    bool enabled_ = true;
    platform::ButtonState state_ = platform::ButtonState::off;
};

class SimulatedRecorder final : public platform::RecorderControl {
public:
    SimulatedRecorder(std::string field, Transcript& transcript) : record_(std::move(field), transcript) {}

    void setHidden(bool hidden) override;
    void setKeyCombo(const platform::KeyCombo& keyCombo) override;
    void setDelegate(platform::RecorderDelegate& delegate) override;

    [[nodiscard]] platform::Dictionary contents() const;

private:
    ControlRecord record_;
    bool hidden_ = false;
    platform::KeyCombo keyCombo_;
    platform::RecorderDelegate* delegate_ = nullptr;
};

class SimulatedColumn final : public platform::TableColumn {
public:
    SimulatedColumn(std::string identifier, ControlRecord& table)
        : identifier_(std::move(identifier)), table_(table) {}

    std::string identifier() const override { return identifier_; }

    void setHeaderStringValue(std::string_view text) override;

    [[nodiscard]] const std::string& header() const { return header_; }

private:
    std::string identifier_;
    ControlRecord& table_;
    std::string header_;
};

class SimulatedTable final : public platform::TableView {
public:
    /// Reloading the table calls rowCount for the data source's number of rows.
    SimulatedTable(std::string field, Transcript& transcript, const std::vector<std::string>& columns,
                   std::function<std::int64_t()> rowCount);

    platform::TableColumn& tableColumnWithIdentifier(platform::ColumnIdentifier identifier) override;
    void reloadData() override;
    void selectRow(std::size_t row) override;
    void scrollRowToVisible(std::size_t row) override;

    [[nodiscard]] platform::Dictionary contents() const;

private:
    ControlRecord record_;
    std::vector<SimulatedColumn> columns_;
    std::function<std::int64_t()> rowCount_;
    std::int64_t rows_ = 0;
    std::optional<std::size_t> selected_;
    std::optional<std::size_t> scrolledTo_;
};

/// Which simulated control stands for one of that interface.
template <class Interface>
struct SimulatedKind;

template <>
struct SimulatedKind<platform::RecorderControl> {
    using Type = SimulatedRecorder;
};

template <>
struct SimulatedKind<platform::Button> {
    using Type = SimulatedButton;
};

template <>
struct SimulatedKind<platform::TextField> {
    using Type = SimulatedTextField;
};

template <>
struct SimulatedKind<platform::TableView> {
    using Type = SimulatedTable;
};

template <class Interface>
using SimulatedControl = typename SimulatedKind<Interface>::Type;

} // namespace qbsp::simulated
