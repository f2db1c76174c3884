#include "pane/QBSPPreferencePane.h"
#include "settings/SorterDomain.h"

namespace qbsp {

void QBSPPreferencePane::loadHideAppData() {
    const platform::Value stored = sorterDomain().hideFlags();
    const auto* const hideFlags = stored.as<platform::Dictionary>();
    if (hideFlags == nullptr)
        return;
    tableArray_.load(*hideFlags);
    controls.hideAppsTable->reloadData();
}

std::int64_t QBSPPreferencePane::numberOfRowsInTableView(const platform::TableView&) const {
    return static_cast<std::int64_t>(tableArray_.records().size());
}

platform::Value QBSPPreferencePane::tableViewObjectValueForTableColumnRow(const platform::TableView&,
                                                                          const platform::TableColumn& column,
                                                                          std::int64_t row) const {
    const bool wantsName = services_.strings.equalIgnoringCase(column.identifier(), nameColumn.text);
    const HideAppInfo& info = tableArray_.at(static_cast<std::size_t>(row));
    if (wantsName)
        return std::string(info.appName);
    return static_cast<std::int32_t>(info.hideApp.boolValue());
}

void QBSPPreferencePane::tableViewSetObjectValueForTableColumnRow(const platform::TableView&,
                                                                  const platform::Value& value,
                                                                  const platform::TableColumn& column,
                                                                  std::int32_t row) {
    // Every column but the name's shows the flag, and only this one edits it: a table with more columns must
    // not change the list by them.
    if (!services_.strings.equalIgnoringCase(column.identifier(), flagColumn.text))
        return;
    tableArray_.setHideApp(static_cast<std::size_t>(row), value.intValue() == 1);
    hideAppsUpdated_ = true;
}

std::int64_t QBSPPreferencePane::indexOfAppInList(std::string_view appName) const {
    return tableArray_.indexOf(appName);
}

} // namespace qbsp
