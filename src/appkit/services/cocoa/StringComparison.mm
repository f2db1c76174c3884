#include "appkit/services/StringComparison.h"

#include "appkit/bridge/Retained.h"
#include "appkit/bridge/Strings.h"

#include <algorithm>
#include <numeric>

namespace qbsp::appkit {

namespace {

std::weak_ordering compared(NSString* receiver, NSString* other) {
    switch ([receiver caseInsensitiveCompare:other]) {
    case NSOrderedAscending:
        return std::weak_ordering::less;
    case NSOrderedDescending:
        return std::weak_ordering::greater;
    default:
        return std::weak_ordering::equivalent;
    }
}

} // namespace

std::weak_ordering AppKitStringComparison::caseInsensitiveCompare(std::string_view receiver,
                                                                  std::string_view other) const {
    return compared(nsString(receiver), nsString(other));
}

// Makes each string once.
std::vector<std::size_t> AppKitStringComparison::order(std::span<const std::string_view> texts) const {
    std::vector<Retained<NSString*>> strings;
    std::ranges::transform(texts, std::back_inserter(strings),
                           [](std::string_view text) { return Retained<NSString*>(nsString(text)); });
    std::vector<std::size_t> places(texts.size());
    std::iota(places.begin(), places.end(), std::size_t{0});
    std::ranges::stable_sort(places, [&](std::size_t first, std::size_t second) {
        return std::is_lt(compared(strings[first].get(), strings[second].get()));
    });
    return places;
}

} // namespace qbsp::appkit
