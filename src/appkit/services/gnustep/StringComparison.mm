#include "appkit/services/StringComparison.h"

#include "appkit/services/gnustep/ComparedCharacters.h"

#include <algorithm>
#include <utility>

namespace qbsp::appkit {

// What GNUstep's strings do, without making any.
std::weak_ordering AppKitStringComparison::caseInsensitiveCompare(std::string_view receiver,
                                                                  std::string_view other) const {
    ComparedCharacters receivers(receiver);
    ComparedCharacters others(other);
    while (!receivers.atEnd() && !others.atEnd())
        if (const auto order = receivers.take() <=> others.take(); std::is_neq(order))
            return order;
    return others.atEnd() <=> receivers.atEnd();
}

// With the key of each text, made once, the order is that of bytes.
std::vector<std::size_t> AppKitStringComparison::order(std::span<const std::string_view> texts) const {
    std::vector<std::pair<std::string, std::size_t>> keys;
    keys.reserve(texts.size());
    for (const std::string_view text : texts)
        keys.emplace_back(sortKey(text), keys.size());
    std::ranges::sort(keys);
    std::vector<std::size_t> places(texts.size());
    std::ranges::transform(keys, places.begin(), [](const auto& key) { return key.second; });
    return places;
}

} // namespace qbsp::appkit
