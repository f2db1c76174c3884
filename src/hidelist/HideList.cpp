#include "hidelist/HideList.h"

#include <algorithm>
#include <utility>

namespace qbsp {

std::weak_ordering compareStringUsingSelector(const HideAppInfo& first, const HideAppInfo& second,
                                              const platform::StringComparison& strings) {
    return strings.caseInsensitiveCompare(first.appName, second.appName);
}

void HideList::load(const platform::Dictionary& hideFlags) {
    exists_ = true;
    records_.clear();
    records_.reserve(hideFlags.size());
    for (const auto& [appName, hideApp] : hideFlags)
        records_.push_back({appName, hideApp});
    sort();
}

std::size_t HideList::add(HideAppInfo record) {
    if (!exists())
        return 0;
    const auto next = std::ranges::upper_bound(records_, record, [&](const auto& first, const auto& second) {
        return std::is_lt(compareStringUsingSelector(first, second, strings_));
    });
    const auto row = static_cast<std::size_t>(next - records_.begin());
    records_.insert(next, std::move(record));
    return row;
}

void HideList::removeAll() {
    records_.clear();
}

std::int64_t HideList::indexOf(std::string_view appName) const {
    const auto found = std::ranges::find_if(
        records_, [&](const auto& record) { return strings_.equalIgnoringCase(record.appName, appName); });
    return found == records_.end() ? notFound : found - records_.begin();
}

platform::Dictionary HideList::hideFlags() const {
    platform::Dictionary flags;
    for (const auto& record : records_)
        flags.insert_or_assign(record.appName, record.hideApp);
    return flags;
}

void HideList::sort() {
    std::vector<std::string_view> names;
    for (const auto& record : records_)
        names.push_back(record.appName);
    Records sorted;
    sorted.reserve(records_.size());
    for (const std::size_t place : strings_.order(names))
        sorted.push_back(std::move(records_[place]));
    records_ = std::move(sorted);
}

} // namespace qbsp
