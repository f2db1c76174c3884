// A pane shows, edits and stores whatever list it finds. The input is a property list: a dictionary with the
// list that is stored, the factory's defaults, the description of an application that is chosen, its path,
// and the rows to edit.

#include "Input.h"
#include "Require.h"
#include "SameValue.h"
#include "Stage.h"
#include "propertylists/PropertyList.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

namespace qbsp::fuzz {

namespace {

using platform::Array;
using platform::Dictionary;
using platform::Value;

template <class T>
T part(const Dictionary& input, const std::string& name) {
    const Value value = platform::entry(input, name);
    const auto* const present = value.as<T>();
    return present == nullptr ? T() : *present;
}

/// A pane over such an input.
class Story {
public:
    explicit Story(const Dictionary& input) : input_(input), stored_(platform::entry(input, "stored")) {
        stage_.storeHideList(full, stored_);
        stage_.world.disk.putPropertyList(
            "/PlugIn/Quarrybook Sorter.app/Contents/Resources/FactoryDefaults.plist",
            part<Dictionary>(input, "factory"));
    }

    void show() {
        stage_.select();
        checkRows();
        const auto* const list = stored_.as<Dictionary>();
        require(rowCount() == (list == nullptr ? 0 : list->size()), "each entry of the list is a row");
        stage_.unselect();
        require(isSame(stage_.hideList(full), stored_), "a list that was only shown stays as it is");
    }

    void edit() {
        stage_.pane().willSelect();
        const Dictionary before = stage_.pane().tableArray().hideFlags();
        Dictionary edited = before;
        for (const Value& row : part<Array>(input_, "edits"))
            editRow(row.intValue(), row.boolValue(), edited);
        if (edited == before)
            return;
        stage_.unselect();
        require(isSame(stage_.hideList(full), edited),
                "the rows that were edited are stored, and all others");
    }

    void choose() {
        const std::string chosen = "/" + part<std::string>(input_, "chosen");
        stage_.world.disk.putPropertyList(chosen + "/Contents/Info.plist", part<Dictionary>(input_, "info"));
        stage_.pane().willSelect();
        const std::size_t before = rowCount();
        stage_.pane().addHideApp(nullptr);
        stage_.platform.openPanels.endSheet(platform::NSOKButton, chosen);
        checkRows();
        require(rowCount() == before || rowCount() == before + 1, "one application is one row");
        stage_.unselect();
    }

    void reset() {
        stage_.pane().willSelect();
        stage_.pane().resetFullscreenSettings(nullptr);
        const Value factory = platform::entry(part<Dictionary>(input_, "factory"), hideListKey);
        require(isSame(stage_.hideList(full), factory), "a reset stores the factory's list");
        checkRows();
        stage_.unselect();
    }

private:
    [[nodiscard]] std::size_t rowCount() const { return stage_.pane().tableArray().records().size(); }

    [[nodiscard]] Value shown(std::size_t row, const char* column) const {
        const auto& table = *stage_.controls().hideAppsTable;
        return stage_.pane().tableViewObjectValueForTableColumnRow(
            table, stage_.controls().hideAppsTable->tableColumnWithIdentifier({column}),
            static_cast<std::int64_t>(row));
    }

    void editRow(std::int32_t row, bool hide, Dictionary& expected) {
        if (row < 0 || std::cmp_greater_equal(row, rowCount()))
            return;
        stage_.editRow(row, hide);
        expected[std::string(stage_.pane().tableArray().at(static_cast<std::size_t>(row)).appName)] = hide;
    }

    void checkRows() {
        const auto& records = stage_.pane().tableArray().records();
        require(std::ranges::is_sorted(records,
                                       [&](const auto& one, const auto& other) {
                                           return std::is_lt(compareStringUsingSelector(
                                               one, other, stage_.platform.strings));
                                       }),
                "the rows are sorted");
        for (std::size_t row = 0; row < records.size(); ++row) {
            require(shown(row, "1") == Value(std::string(records[row].appName)), "a row shows its name");
            const Value flag = shown(row, "2");
            require(flag == Value(0) || flag == Value(1), "a row shows on or off");
        }
        require(stage_.platform.preferences.openSuites() == 0, "no suite stays added");
    }

    const Dictionary& input_;
    Value stored_;
    Stage stage_;
};

} // namespace

} // namespace qbsp::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace qbsp;
    const auto parsed = propertylists::parsedPropertyList(fuzz::textOf(data, size));
    const auto* const value = std::get_if<platform::Value>(&parsed);
    const auto* const input = value == nullptr ? nullptr : value->as<platform::Dictionary>();
    if (input == nullptr)
        return 0;
    fuzz::Story story(*input);
    story.show();
    story.edit();
    story.choose();
    story.reset();
    return 0;
}
