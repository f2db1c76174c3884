#include "hidelist/HideList.h"

#include <algorithm>
#include <utility>

namespace qbsp {

std::weak_ordering compareStringUsingSelector(const HideAppInfo& first, const HideAppInfo& second,
                                              const platform::StringComparison& strings) {
    return strings.caseInsensitiveCompare(first.appName, second.appName);
}

HideAppInfo& HideList::at(std::size_t row) const {
    return *records_.at(row);
}

void HideList::load(const platform::Dictionary& hideFlags) {
    exists_ = true;
    records_.clear();
    records_.reserve(hideFlags.size());
    for (const auto& [appName, hideApp] : hideFlags)
        records_.push_back(std::make_shared<HideAppInfo>(HideAppInfo{appName, hideApp}));
    sort();
}

void HideList::add(const std::shared_ptr<HideAppInfo>& record) {
    if (!exists())
        return;
    records_.push_back(record);
    sort();
}

void HideList::removeAll() {
    records_.clear();
}

std::int64_t HideList::indexOf(std::string_view appName) const {
    const auto found = std::ranges::find_if(
        records_, [&](const auto& record) { return strings_.equalIgnoringCase(record->appName, appName); });
    return found == records_.end() ? notFound : found - records_.begin();
}

std::size_t HideList::indexOf(const std::shared_ptr<HideAppInfo>& record) const {
    return static_cast<std::size_t>(std::ranges::find(records_, record) - records_.begin());
}

platform::Dictionary HideList::hideFlags() const {
    platform::Dictionary flags;
    for (const auto& record : records_)
        flags.insert_or_assign(record->appName, record->hideApp);
    return flags;
}

void HideList::sort() {
    std::vector<std::string_view> names;
    for (const auto& record : records_)
        names.push_back(record->appName);
    Records sorted;
    sorted.reserve(records_.size());
    for (const std::size_t place : strings_.order(names))
        sorted.push_back(records_[place]);
    records_ = std::move(sorted);
}

} // namespace qbsp
