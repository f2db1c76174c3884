#include "platform/StringComparison.h"

#include <algorithm>
#include <numeric>

namespace qbsp::platform {

std::vector<std::size_t> StringComparison::order(std::span<const std::string_view> texts) const {
    std::vector<std::size_t> places(texts.size());
    std::iota(places.begin(), places.end(), std::size_t{0});
    std::ranges::stable_sort(places, [&](std::size_t first, std::size_t second) {
        return std::is_lt(caseInsensitiveCompare(texts[first], texts[second]));
    });
    return places;
}

} // namespace qbsp::platform
