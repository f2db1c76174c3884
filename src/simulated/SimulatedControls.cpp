#include "simulated/SimulatedControls.h"

#include "platform/NullObjects.h"
#include "simulated/Json.h"

#include <algorithm>

namespace qbsp::simulated {

namespace {

using platform::Array;
using platform::Dictionary;
using platform::Value;

Value rowValue(std::optional<std::size_t> row) {
    return row ? Value(static_cast<std::int64_t>(*row)) : Value();
}

} // namespace

bool ControlRecord::record(std::string_view selector, std::initializer_list<std::string> arguments) {
    const bool works = !transcript_.fails();
    transcript_.record(field_ + " " + std::string(selector), arguments);
    return works;
}

bool ControlRecord::recordLookup(std::string_view selector, const std::string& argument, bool exists) {
    const bool found = !transcript_.fails() && exists;
    transcript_.record(field_ + " " + std::string(selector), {argument}, json(found));
    return found;
}

void SimulatedTextField::setHidden(bool hidden) {
    if (record_.record("setHidden:", {json(hidden)}))
        hidden_ = hidden;
}

void SimulatedTextField::setStringValue(std::string_view text) {
    if (record_.record("setStringValue:", {jsonText(text)}))
        text_ = text;
}

Dictionary SimulatedTextField::contents() const {
    return {{"hidden", hidden_}, {"text", text_}};
}

void SimulatedButton::setHidden(bool hidden) {
    if (record_.record("setHidden:", {json(hidden)}))
        hidden_ = hidden;
}

void SimulatedButton::setTitle(std::string_view title) {
    if (record_.record("setTitle:", {jsonText(title)}))
        title_ = title;
}

void SimulatedButton::setEnabled(bool enabled) {
    if (record_.record("setEnabled:", {json(enabled)}))
        enabled_ = enabled;
}

void SimulatedButton::setState(platform::ButtonState state) {
    if (record_.record("setState:", {std::to_string(static_cast<int>(state))}))
        state_ = state;
}

Dictionary SimulatedButton::contents() const {
    return {
        {"enabled", enabled_}, {"hidden", hidden_}, {"state", static_cast<int>(state_)}, {"title", title_}};
}

void SimulatedRecorder::setHidden(bool hidden) {
    if (record_.record("setHidden:", {json(hidden)}))
        hidden_ = hidden;
}

void SimulatedRecorder::setKeyCombo(const platform::KeyCombo& keyCombo) {
    const Dictionary shown{{"code", keyCombo.code}, {"flags", keyCombo.flags}};
    if (record_.record("setKeyCombo:", {json(shown)}))
        keyCombo_ = keyCombo;
}

void SimulatedRecorder::setDelegate(platform::RecorderDelegate& delegate) {
    if (record_.record("setDelegate:", {}))
        delegate_ = &delegate;
}

Dictionary SimulatedRecorder::contents() const {
    return {{"code", keyCombo_.code},
            {"delegate", delegate_ != nullptr},
            {"flags", keyCombo_.flags},
            {"hidden", hidden_}};
}

void SimulatedColumn::setHeaderStringValue(std::string_view text) {
    if (table_.record("setHeaderStringValue:", {jsonText(identifier_), jsonText(text)}))
        header_ = text;
}

SimulatedTable::SimulatedTable(std::string field, Transcript& transcript,
                               const std::vector<std::string>& columns,
                               std::function<std::int64_t()> rowCount)
    : record_(std::move(field), transcript), rowCount_(std::move(rowCount)) {
    for (const std::string& identifier : columns)
        columns_.emplace_back(identifier, record_);
}

platform::TableColumn& SimulatedTable::tableColumnWithIdentifier(platform::ColumnIdentifier identifier) {
    const auto column = std::ranges::find_if(columns_, [&](const SimulatedColumn& candidate) {
        return candidate.identifier() == identifier.text;
    });
    if (record_.recordLookup("tableColumnWithIdentifier:", jsonText(identifier.text),
                             column != columns_.end()))
        return *column;
    return platform::nullObject<platform::TableColumn>();
}

void SimulatedTable::reloadData() {
    if (record_.record("reloadData", {}))
        rows_ = rowCount_();
}

void SimulatedTable::selectRow(std::size_t row) {
    if (record_.record("selectRowIndexes:byExtendingSelection:",
                       {"[" + std::to_string(row) + "]", json(false)}))
        selected_ = row;
}

void SimulatedTable::scrollRowToVisible(std::size_t row) {
    if (record_.record("scrollRowToVisible:", {std::to_string(row)}))
        scrolledTo_ = row;
}

Dictionary SimulatedTable::contents() const {
    Array columns;
    for (const SimulatedColumn& column : columns_)
        columns.emplace_back(Array{column.identifier(), column.header()});
    return {{"columns", columns},
            {"rows", rows_},
            {"scrolledTo", rowValue(scrolledTo_)},
            {"selected", selected_ ? Array{rowValue(selected_)} : Array{}}};
}

} // namespace qbsp::simulated
