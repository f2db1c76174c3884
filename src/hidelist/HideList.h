#pragma once

#include "hidelist/HideAppInfo.h"
#include "platform/StringComparison.h"
#include "platform/Value.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace qbsp {

/// Orders two rows by name, ignoring case: the order of the list.
[[nodiscard]] std::weak_ordering compareStringUsingSelector(const HideAppInfo& first,
                                                            const HideAppInfo& second,
                                                            const platform::StringComparison& strings);

/// The rows of the hide list. The list does not exist until a stored one was loaded; until then it has no
/// rows and rows cannot be added.
class HideList {
public:
    using Records = std::vector<HideAppInfo>;

    /// What a lookup returns when no row has the name.
    static constexpr std::int64_t notFound = -1;

    /// The comparison must outlive the list.
    explicit HideList(const platform::StringComparison& strings) : strings_(strings) {}

    [[nodiscard]] bool exists() const { return exists_; }

    /// The rows in their order; none while the list does not exist.
    [[nodiscard]] const Records& records() const { return records_; }

    /// The row's record. Throws std::out_of_range for a row outside the list.
    [[nodiscard]] const HideAppInfo& at(std::size_t row) const { return records_.at(row); }

    /// Sets the row's flag. Throws std::out_of_range for a row outside the list.
    void setHideApp(std::size_t row, bool hideApp) { records_.at(row).hideApp = hideApp; }

    /// Replaces all rows by those of the stored list, sorted.
    void load(const platform::Dictionary& hideFlags);

    /// Adds a row at its place in the order, after those with an equal name, and returns it; does nothing
    /// and returns 0 while the list does not exist. The name is copied.
    std::size_t add(HideAppInfo record);

    /// Removes all rows. A list that existed goes on existing.
    void removeAll();

    /// The first row whose name matches, ignoring case, or notFound.
    [[nodiscard]] std::int64_t indexOf(std::string_view appName) const;

    /// The list as it is stored. Of rows with the same name the last counts.
    [[nodiscard]] platform::Dictionary hideFlags() const;

private:
    std::string_view keep(std::string names);
    void sort();

    const platform::StringComparison& strings_;
    bool exists_ = false;
    Records records_;
    /// What the rows' names lie in, which never moves: one text with all names of the stored list, and one
    /// for each row that was added. A string in each row would take more than most names.
    std::vector<std::unique_ptr<const std::string>> names_;
};

} // namespace qbsp
