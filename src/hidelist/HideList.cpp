#include "hidelist/HideList.h"

#include <algorithm>
#include <utility>

namespace qbsp {

namespace {

std::string joinedNames(const platform::Dictionary& hideFlags) {
    std::string names;
    for (const auto& [appName, hideApp] : hideFlags)
        names += appName;
    names.shrink_to_fit();
    return names;
}

} // namespace

std::weak_ordering compareStringUsingSelector(const HideAppInfo& first, const HideAppInfo& second,
                                              const platform::StringComparison& strings) {
    return strings.caseInsensitiveCompare(first.appName, second.appName);
}

void HideList::load(const platform::Dictionary& hideFlags) {
    exists_ = true;
    records_.clear();
    records_.reserve(hideFlags.size());
    names_.clear();
    std::string_view names = keep(joinedNames(hideFlags));
    for (const auto& [appName, hideApp] : hideFlags) {
        records_.push_back({names.substr(0, appName.size()), hideApp});
        names.remove_prefix(appName.size());
    }
    sort();
}

std::size_t HideList::add(HideAppInfo record) {
    if (!exists())
        return 0;
    record.appName = keep(std::string(record.appName));
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
        flags.insert_or_assign(std::string(record.appName), record.hideApp);
    return flags;
}

std::string_view HideList::keep(std::string names) {
    return *names_.emplace_back(std::make_unique<const std::string>(std::move(names)));
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
