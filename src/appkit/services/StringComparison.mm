#include "appkit/services/StringComparison.h"

#include "appkit/bridge/Strings.h"

namespace qbsp::appkit {

std::weak_ordering AppKitStringComparison::caseInsensitiveCompare(std::string_view receiver,
                                                                  std::string_view other) const {
    switch ([nsString(receiver) caseInsensitiveCompare:nsString(other)]) {
    case NSOrderedAscending:
        return std::weak_ordering::less;
    case NSOrderedDescending:
        return std::weak_ordering::greater;
    default:
        return std::weak_ordering::equivalent;
    }
}

} // namespace qbsp::appkit
